#include <windows.h>

#include <cstdlib>
#include <string>

#include "workbench/app/application.h"
#include "workbench/script/driver.h"

using workbench::Application;
using workbench::ScriptDriver;

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
  Application application;
  std::string path;
  std::string script;
  for (int i = 1; i < __argc; ++i) {
    const std::string argument = __argv[i];
    if (argument == "--script" && i + 1 < __argc) {
      script = __argv[++i];
    } else if (argument == "--addon" && i + 1 < __argc) {
      ++i;
    } else {
      path = argument;
    }
  }
  if (!application.createFrame(instance)) {
    return 1;
  }
  ShowWindow(application.frame(), show);
  if (!path.empty()) {
    application.openPath(path);
  }
  ScriptDriver driver(application);
  if (!script.empty()) {
    if (!driver.load(script)) {
      return 1;
    }
    driver.start();
  }
  return application.frameWindow().run();
}
