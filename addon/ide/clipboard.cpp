#include "addon/ide/clipboard.h"

#include <cstring>

namespace kesto {
namespace {

constexpr int kOpenTries = 25;
constexpr DWORD kMillisecondsBetweenTries = 10;

}  // namespace

Clipboard::Clipboard(HWND owner) {
  for (int tries = 0; tries < kOpenTries && !open_; ++tries) {
    if (tries > 0) {
      Sleep(kMillisecondsBetweenTries);
    }
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

void Clipboard::setText(const std::string& text) {
  clear();
  const HGLOBAL memory =
      open_ ? GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, text.size() + 1) : nullptr;
  void* bytes = memory != nullptr ? GlobalLock(memory) : nullptr;
  if (bytes != nullptr) {
    memcpy(bytes, text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
  }
  // The system owns the memory once it took it.
  if (memory != nullptr && (bytes == nullptr || SetClipboardData(CF_TEXT, memory) == nullptr)) {
    GlobalFree(memory);
  }
}

std::string copySelection(HWND owner, HWND text_window) {
  std::optional<std::string> saved;
  {
    Clipboard clipboard(owner);
    // What cannot be saved must not be overwritten.
    if (!clipboard.isOpen()) {
      return {};
    }
    saved = clipboard.text();
    clipboard.clear();
  }
  SendMessageA(text_window, WM_COPY, 0, 0);
  Clipboard clipboard(owner);
  const std::optional<std::string> selection = clipboard.text();
  if (saved.has_value()) {
    clipboard.setText(*saved);
  } else {
    clipboard.clear();
  }
  return selection.value_or(std::string());
}

}  // namespace kesto
