#include "workbench/events/ansi.h"
#include "workbench/events/event_log.h"
#include "workbench/paths.h"
#include "workbench/script/steps.h"

namespace workbench {
namespace {

constexpr unsigned kWaitMs = 20000;
constexpr unsigned kExpectMs = 5000;
// Another program makes the file, and may have much to do before.
constexpr unsigned kWaitFileMs = 50000;

EventQuery queryOf(const StepTry& step) {
  EventQuery query{step.arg(0), std::nullopt, {}};
  if (step.argCount() == 3) {
    query.key = step.arg(1);
    query.value = step.arg(2);
  }
  return query;
}

std::string wording(const EventQuery& query) {
  return query.name + (query.key ? " " + *query.key + " \"" + query.value + "\"" : "");
}

// An event for the reason of a failure; a long one is cut.
std::string shown(const Event& event) {
  constexpr size_t kMost = 1000;
  std::string json;
  ansiFromUtf8(event.toJson(), &json);
  return json.size() <= kMost ? json : json.substr(0, kMost) + "...";
}

std::string seen(const StepTry& step, const std::string& name) {
  const Event* latest = step.stage.history.latest(name);
  return latest == nullptr ? "no " + name + " has come" : "the latest was " + shown(*latest);
}

// What lies before it is no longer looked at, but for the latest of each name.
void waitFrom(Stage& stage, size_t position) {
  stage.wait_from = position;
  stage.history.forget(position);
}

}  // namespace

StepResult stepWait(StepTry& step) {
  if (step.argCount() == 2) {
    return step.fail("usage: wait EVENT [KEY VALUE]");
  }
  Stage& stage = step.stage;
  EventQuery query = queryOf(step);
  size_t found = stage.history.find(query, stage.wait_from);
  if (found == stage.history.end()) {
    return step.again("waited for " + wording(query) + ": " + seen(step, query.name), kWaitMs);
  }
  waitFrom(stage, found + 1);
  return StepResult::kDone;
}

StepResult stepWaitFile(StepTry& step) {
  const std::string path = step.stage.paths.resolve(step.arg(0));
  return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES
             ? StepResult::kDone
             : step.again("waited for the file " + path, kWaitFileMs);
}

StepResult stepExpect(StepTry& step) {
  return expectLatest(step, queryOf(step));
}

StepResult expectLatest(StepTry& step, const EventQuery& query) {
  const Event* latest = step.stage.history.latest(query.name);
  if (latest != nullptr && query.matches(*latest)) {
    return StepResult::kDone;
  }
  return step.again("expected " + wording(query) + ": " + seen(step, query.name), kExpectMs);
}

StepResult stepExpectNot(StepTry& step) {
  if (step.argCount() == 2) {
    return step.fail("usage: expect-not EVENT [KEY VALUE]");
  }
  const EventHistory& history = step.stage.history;
  size_t found = history.find(queryOf(step), step.stage.wait_from);
  if (found == history.end()) {
    return StepResult::kDone;
  }
  return step.fail("did not expect " + shown(history.at(found)));
}

StepResult stepMark(StepTry& step) {
  waitFrom(step.stage, step.stage.history.end());
  return StepResult::kDone;
}

StepResult stepEcho(StepTry& step) {
  step.stage.log.emit(Event("echo").text("text", step.arg(0)));
  return StepResult::kDone;
}

StepResult stepQuit(StepTry& step) {
  step.stage.quit = true;
  return StepResult::kDone;
}

}  // namespace workbench
