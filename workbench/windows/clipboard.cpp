#include "workbench/windows/clipboard.h"

#include <cstring>

namespace workbench {
namespace {

std::string withCrLf(const std::string& text) {
  std::string result;
  result.reserve(text.size() + text.size() / 32);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') {
      if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
        ++i;
      }
      result += "\r\n";
    } else {
      // A NUL would end the text for whoever takes it.
      result += text[i] == '\0' ? ' ' : text[i];
    }
  }
  return result;
}

}  // namespace

bool putOnClipboard(HWND owner, const std::string& text) {
  const std::string bytes = withCrLf(text);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, bytes.size() + 1);
  if (memory == nullptr) {
    return false;
  }
  std::memcpy(GlobalLock(memory), bytes.c_str(), bytes.size() + 1);
  GlobalUnlock(memory);
  bool done = false;
  if (OpenClipboard(owner) != 0) {
    done = EmptyClipboard() != 0 && SetClipboardData(CF_TEXT, memory) != nullptr;
    CloseClipboard();
  }
  if (!done) {
    GlobalFree(memory);
  }
  return done;
}

bool takeFromClipboard(HWND owner, std::string* text) {
  if (OpenClipboard(owner) == 0) {
    return false;
  }
  bool done = false;
  if (HANDLE memory = GetClipboardData(CF_TEXT)) {
    if (const auto* bytes = static_cast<const char*>(GlobalLock(memory))) {
      text->assign(bytes, strnlen(bytes, GlobalSize(memory)));
      GlobalUnlock(memory);
      done = true;
    }
  }
  CloseClipboard();
  return done;
}

}  // namespace workbench
