#include "addon/ide/search_watch.h"

#include "addon/ide/hook_set.h"
#include "addon/ide/status_line.h"
#include "addon/ide/window_painting.h"

namespace kesto {
namespace {

// Milliseconds.
constexpr DWORD kLookPeriod = 50;
constexpr DWORD kShort = 1000;  // a search that needs no telling
constexpr DWORD kTellPeriod = 500;

// Whether Escape is down, or was since the last call, and meant for this program: the
// key's state is the whole system's.
bool escapePressed() {
  constexpr SHORT kDownOrWas = static_cast<SHORT>(0x8001);
  const bool pressed = (GetAsyncKeyState(VK_ESCAPE) & kDownOrWas) != 0;
  DWORD process = 0;
  GetWindowThreadProcessId(GetForegroundWindow(), &process);
  return pressed && process == GetCurrentProcessId();
}

std::string counted(int count, const char* what) {
  return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

}  // namespace

SearchWatch::SearchWatch(std::string text)
    : text_(std::move(text)), begun_(GetTickCount()), looked_(begun_), told_(begun_) {
  // What was pressed before was meant for something else.
  GetAsyncKeyState(VK_ESCAPE);
}

bool SearchWatch::goOn(int directories, int files) {
  const DWORD now = GetTickCount();
  if (now - looked_ < kLookPeriod) {
    return true;
  }
  looked_ = now;
  if (escapePressed()) {
    stopped_ = true;
    if (hookSet != nullptr) {
      hookSet->swallowEscape();
    }
    return false;
  }
  if (now - begun_ >= kShort && now - told_ >= kTellPeriod) {
    told_ = now;
    has_told_ = true;
    const std::string shown = files > 0 ? counted(files, "file") + " in " : std::string();
    showStatus((text_ + ' ' + shown + counted(directories, "folder") + ", Esc stops").c_str());
  }
  stopped_ = !paintWindows();
  return !stopped_;
}

void SearchWatch::finished(const char* text) const {
  if (has_told_) {
    showStatus(text);
  }
}

}  // namespace kesto
