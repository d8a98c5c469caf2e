#include <windows.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "workbench/app/application.h"
#include "workbench/app/command_line.h"
#include "workbench/app/own_addon.h"
#include "workbench/script/driver.h"
#include "workbench/windows/names.h"

namespace workbench {
namespace {

// A script has no one to press OK, so it only gets an event.
void reportStartFailure(Application& application, bool scripted, const std::string& reason) {
  application.events().emit(Event("error").number("line", 0).text("text", reason));
  if (!scripted) {
    MessageBoxA(nullptr, reason.c_str(), kProgramCaption, MB_OK | MB_ICONERROR);
  }
}

int runProgram(HINSTANCE instance, const std::vector<std::string>& arguments, int show) {
  Application application;
  CommandLine line;
  std::string reason;
  if (!parseCommandLine(arguments, &line, &reason)) {
    reportStartFailure(application, !line.script.empty(), reason);
    return 1;
  }
  const bool scripted = !line.script.empty();
  if (line.own_addon) {
    line.addon = ownAddon();
  }
  if (!line.addon.empty() && !application.startAddon(line.addon, &reason)) {
    reportStartFailure(application, scripted, reason);
    if (scripted) {
      return 1;
    }
  }
  if (!application.createFrame(instance, !scripted)) {
    reportStartFailure(application, scripted, "The program's windows cannot be created.");
    return 1;
  }
  ScriptDriver driver(application);
  if (scripted && !driver.load(line.script)) {
    reportStartFailure(application, scripted, "The script " + line.script + " cannot be read.");
    return 1;
  }
  ShowWindow(application.frame(), show);
  UpdateWindow(application.frame());
  if (scripted) {
    driver.start();
  }
  if (!line.path.empty()) {
    if (scripted) {
      application.openPath(line.path);
    } else {
      application.openForPerson(line.path);
    }
  }
  return application.run();
}

}  // namespace
}  // namespace workbench

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
  const std::vector<std::string> arguments(__argv + 1, __argv + __argc);
  return workbench::runProgram(instance, arguments, show);
}
