#include "workbench/script/other_ide.h"

#include <cstdlib>
#include <cstring>
#include <string>

namespace workbench {
namespace {

std::string commandLine(bool with_addon) {
  std::string line = "\"";
  line.append(__argv[0]).append("\"");
  for (int i = 1; with_addon && i + 1 < __argc; ++i) {
    if (std::strcmp(__argv[i], "--addon") == 0) {
      line.append(" --addon \"").append(__argv[i + 1]).append("\"");
    }
  }
  return with_addon ? line : line.append(" --addon \"\"");
}

}  // namespace

bool OtherIde::start(bool with_addon) {
  end();
  STARTUPINFOA info{};
  info.cb = sizeof info;
  info.dwFlags = STARTF_USESTDHANDLES;  // none: its events are not those of this run
  PROCESS_INFORMATION made{};
  std::string line = commandLine(with_addon);
  if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info,
                     &made) == 0) {
    return false;
  }
  CloseHandle(made.hThread);
  process_.reset(made.hProcess);
  id_ = made.dwProcessId;
  return true;
}

bool OtherIde::inFront() const {
  DWORD process = 0;
  GetWindowThreadProcessId(GetForegroundWindow(), &process);
  return process == id_;
}

bool OtherIde::ended() const {
  return WaitForSingleObject(process_.get(), 0) == WAIT_OBJECT_0;
}

void OtherIde::end() {
  if (process_) {
    TerminateProcess(process_.get(), 0);
    WaitForSingleObject(process_.get(), INFINITE);
    process_.reset();
  }
}

}  // namespace workbench
