#include "workbench/windows/clipboard.h"

#include <algorithm>
#include <cstring>

namespace workbench {
namespace {

template <typename Text>
Text withCrLf(const Text& text) {
  using Unit = typename Text::value_type;
  Text result;
  result.reserve(text.size() + text.size() / 32);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') {
      if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
        ++i;
      }
      result += Unit('\r');
      result += Unit('\n');
    } else {
      // A NUL would end the text for whoever takes it.
      result += text[i] == 0 ? Unit(' ') : text[i];
    }
  }
  return result;
}

// The clipboard must be open.
template <typename Text>
bool put(UINT format, const Text& text) {
  const Text units = withCrLf(text);
  const std::size_t size = (units.size() + 1) * sizeof units[0];
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, size);
  if (memory == nullptr) {
    return false;
  }
  std::memcpy(GlobalLock(memory), units.c_str(), size);
  GlobalUnlock(memory);
  if (SetClipboardData(format, memory) != nullptr) {
    return true;
  }
  GlobalFree(memory);
  return false;
}

template <typename Text>
bool take(HWND owner, UINT format, Text* text) {
  if (OpenClipboard(owner) == 0) {
    return false;
  }
  bool done = false;
  if (HANDLE memory = GetClipboardData(format)) {
    using Unit = typename Text::value_type;
    if (const auto* units = static_cast<const Unit*>(GlobalLock(memory))) {
      const Unit* end = units + GlobalSize(memory) / sizeof(Unit);
      text->assign(units, std::find(units, end, Unit(0)));
      GlobalUnlock(memory);
      done = true;
    }
  }
  CloseClipboard();
  return done;
}

}  // namespace

bool putOnClipboard(HWND owner, const std::string& text, const std::wstring& wide) {
  if (OpenClipboard(owner) == 0) {
    return false;
  }
  bool done = EmptyClipboard() != 0 && put(CF_TEXT, text);
  if (done && !wide.empty()) {
    done = put(CF_UNICODETEXT, wide);
  }
  CloseClipboard();
  return done;
}

bool takeFromClipboard(HWND owner, std::string* text) {
  return take(owner, CF_TEXT, text);
}

bool takeWideFromClipboard(HWND owner, std::wstring* text) {
  return take(owner, CF_UNICODETEXT, text);
}

}  // namespace workbench
