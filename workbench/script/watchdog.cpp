#include "workbench/script/watchdog.h"

#include <cstdio>
#include <string>

#include "workbench/events/event.h"

namespace workbench {
namespace {

constexpr DWORD kStuckMs = 60000;
constexpr DWORD kEndingMs = 15000;
constexpr UINT kStuckExitCode = 3;

void writeError(int line, const char* text) {
  std::string json = Event("error").number("line", line).text("text", text).toJson() + "\n";
  std::fwrite(json.data(), 1, json.size(), stdout);
  std::fflush(stdout);
}

}  // namespace

Watchdog& Watchdog::instance() {
  static Watchdog* const watchdog = new Watchdog;
  return *watchdog;
}

void Watchdog::start() {
  last_ = GetTickCount();
  DWORD id = 0;
  if (HANDLE thread = CreateThread(nullptr, 0, run, this, 0, &id)) {
    CloseHandle(thread);
  }
}

void Watchdog::progress(int line) {
  line_ = line;
  last_ = GetTickCount();
}

void Watchdog::alive() {
  last_ = GetTickCount();
}

void Watchdog::ending(int exit_code) {
  exit_code_ = exit_code;
  last_ = GetTickCount();
  ending_ = true;
}

DWORD WINAPI Watchdog::run(LPVOID data) {
  while (true) {
    Sleep(500);
    static_cast<Watchdog*>(data)->check();
  }
}

// The process is ended outright: its shutdown is what may hang.
void Watchdog::check() {
  DWORD idle = GetTickCount() - last_;
  if (ending_ && idle > kEndingMs) {
    if (exit_code_ == 0) {
      writeError(line_, "the program does not end");
    }
    TerminateProcess(GetCurrentProcess(),
                     exit_code_ == 0 ? kStuckExitCode : static_cast<UINT>(exit_code_));
  } else if (!ending_ && idle > kStuckMs) {
    writeError(line_, "the run is stuck: nothing has gone on for 60 seconds");
    TerminateProcess(GetCurrentProcess(), kStuckExitCode);
  }
}

}  // namespace workbench
