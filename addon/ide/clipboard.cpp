#include "addon/ide/clipboard.h"

#include <cstring>

#include "addon/ide/saved_clipboard.h"

namespace kesto {
namespace {

constexpr DWORD kMillisecondsBetweenTries = 10;
// What was saved is lost otherwise.
constexpr DWORD kPatienceToPutBack = 3000;

}  // namespace

Clipboard::Clipboard(HWND owner, DWORD patience) : open_(OpenClipboard(owner) != FALSE) {
  for (DWORD waited = 0; !open_ && waited < patience; waited += kMillisecondsBetweenTries) {
    Sleep(kMillisecondsBetweenTries);
    open_ = OpenClipboard(owner) != FALSE;
  }
}

Clipboard::~Clipboard() {
  if (open_) {
    CloseClipboard();
  }
}

std::optional<std::string> Clipboard::text() const {
  const HANDLE memory = open_ ? GetClipboardData(CF_TEXT) : nullptr;
  const char* bytes = memory != nullptr ? static_cast<const char*>(GlobalLock(memory)) : nullptr;
  if (bytes == nullptr) {
    return std::nullopt;
  }
  const size_t size = GlobalSize(memory);
  const void* end = memchr(bytes, '\0', size);
  std::string result(
      bytes, end != nullptr ? static_cast<size_t>(static_cast<const char*>(end) - bytes) : size);
  GlobalUnlock(memory);
  return result;
}

void Clipboard::clear() {
  if (open_) {
    EmptyClipboard();
  }
}

std::string copySelection(HWND owner, HWND text_window) {
  SavedClipboard saved;
  {
    Clipboard clipboard(owner);
    // What cannot be saved must not be overwritten.
    if (!clipboard.isOpen() || !saved.take()) {
      return {};
    }
    clipboard.clear();
  }
  SendMessageA(text_window, WM_COPY, 0, 0);
  Clipboard clipboard(owner, kPatienceToPutBack);
  const std::optional<std::string> selection = clipboard.text();
  saved.putBack(clipboard);
  return selection.value_or(std::string());
}

}  // namespace kesto
