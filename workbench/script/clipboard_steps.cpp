// What is on the clipboard, as the bytes of its formats.

#include <charconv>
#include <cstring>

#include "workbench/events/event_log.h"
#include "workbench/main_window.h"
#include "workbench/script/steps.h"

namespace workbench {
namespace {

constexpr long kLastFormat = 0xFFFF;

// Two digits a byte. False for anything else.
bool fromHex(const std::string& text, std::string* bytes) {
  for (size_t i = 0; i < text.size(); i += 2) {
    int value = 0;
    const char* end = text.data() + std::min(i + 2, text.size());
    auto [stop, fault] = std::from_chars(text.data() + i, end, value, 16);
    if (fault != std::errc() || stop != text.data() + i + 2) {
      return false;
    }
    bytes->push_back(static_cast<char>(value));
  }
  return !bytes->empty();
}

bool putBytes(UINT format, const std::string& bytes) {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, bytes.size());
  if (memory == nullptr) {
    return false;
  }
  std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
  GlobalUnlock(memory);
  if (SetClipboardData(format, memory) == nullptr) {
    GlobalFree(memory);
    return false;
  }
  return true;
}

// Empty for a format that is no memory, such as a bitmap.
std::string hexOf(UINT format) {
  std::string hex;
  if (format == CF_BITMAP || format == CF_PALETTE || format == CF_ENHMETAFILE) {
    return hex;
  }
  HANDLE memory = GetClipboardData(format);
  const auto* bytes = memory != nullptr ? static_cast<const BYTE*>(GlobalLock(memory)) : nullptr;
  for (SIZE_T i = 0; bytes != nullptr && i < GlobalSize(memory); ++i) {
    constexpr char kDigits[] = "0123456789abcdef";
    hex += kDigits[bytes[i] >> 4];
    hex += kDigits[bytes[i] & 15];
  }
  if (bytes != nullptr) {
    GlobalUnlock(memory);
  }
  return hex;
}

}  // namespace

StepResult stepClipboard(StepTry& step) {
  if (!OpenClipboard(step.stage.window.frame())) {
    return step.again("the clipboard cannot be opened");
  }
  EmptyClipboard();
  bool done = step.argCount() % 2 == 0;
  for (size_t i = 0; done && i < step.argCount(); i += 2) {
    long format = 0;
    std::string bytes;
    done = step.number(i, 1, kLastFormat, &format) && fromHex(step.arg(i + 1), &bytes) &&
           putBytes(static_cast<UINT>(format), bytes);
  }
  CloseClipboard();
  return done ? StepResult::kDone : step.fail("usage: clipboard [FORMAT HEX]...");
}

StepResult dumpClipboard(StepTry& step) {
  if (!OpenClipboard(step.stage.window.frame())) {
    return step.again("the clipboard cannot be opened");
  }
  std::vector<Event> items;
  for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format)) {
    items.push_back(
        Event("").number("format", static_cast<long>(format)).text("hex", hexOf(format)));
  }
  CloseClipboard();
  step.stage.log.emit(Event("clipboard").list("items", items));
  return StepResult::kDone;
}

}  // namespace workbench
