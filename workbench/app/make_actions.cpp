// Making the project.
#include "workbench/app/application.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

const char* resultWord(int result) {
  switch (result) {
    case kMakeSucceeded:
      return "succeeded";
    case kMakeFailed:
      return "failed";
    case kMakeCancelled:
      return "cancelled";
    default:
      return "not run";
  }
}

std::string resultPhrase(int result) {
  const std::string word = resultWord(result);
  return (result == kMakeCancelled || result == kMakeNotRun ? "was " : "") + word;
}

}  // namespace

void Application::makeStarted(const std::string& command) {
  events_.emit(Event("make").text("state", "started").text("command", command).text("result", ""));
  setStatus("Making " + projectName() + " ...");
  message_window_.beginAfterLast();
  root_.make().clients().each([](IMakeClient* client) { client->MakeStarted(); });
}

void Application::makeGoesOn(int seconds) {
  setStatus("Making " + projectName() + " ... " + std::to_string(seconds) + " s");
}

void Application::makeEnded(int result) {
  setStatus("Make of " + projectName() + ' ' + resultPhrase(result));
  root_.make().clients().each([result](IMakeClient* client) { client->MakeEnded(result); });
  events_.emit(
      Event("make").text("state", "ended").text("command", "").text("result", resultWord(result)));
}

void Application::make(int result) {
  if (!make_.running()) {
    make_.pretend(frame_.window(), result);
  }
}

bool Application::startMake() {
  if (!project_.loaded() || make_.running()) {
    return false;
  }
  std::vector<std::string> saved;
  if (!editors_.saveAll(&saved)) {
    setStatus("Make stopped: a file was not saved");
    return false;
  }
  if (project_.build().empty()) {
    const std::string name(fileName(project_.file()));
    if (ask("The project " + name + " has no build command.\n\nGive it one now?",
            MB_YESNO | MB_ICONQUESTION) == IDYES) {
      editBuild();
    }
  }
  if (!project_.loaded()) {
    return false;
  }
  if (project_.build().empty()) {
    makeStarted("");
    makeEnded(kMakeNotRun);
    setStatus("Make was not run: the project has no build command");
    return true;
  }
  make_.start(frame_.window(), project_.build(), project_.folder());
  return true;
}

bool Application::mayStopMake() {
  if (!make_.running()) {
    return true;
  }
  if (ask("A make is running.\n\nStop it?", MB_YESNO | MB_ICONQUESTION) != IDYES) {
    return false;
  }
  make_.cancel();
  return true;
}

}  // namespace workbench
