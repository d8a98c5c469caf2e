#include "workbench/events/event_log.h"
#include "workbench/paths.h"
#include "workbench/script/handle_count.h"
#include "workbench/script/memory_count.h"
#include "workbench/script/screenshot.h"
#include "workbench/script/settings.h"
#include "workbench/script/steps.h"

namespace workbench {

StepResult stepRegistrySet(StepTry& step) {
  bool written = writeSetting(step.arg(0), step.arg(1), step.arg(2));
  return written ? StepResult::kDone : step.fail("the setting cannot be written");
}

StepResult stepRegistryDelete(StepTry& step) {
  bool gone =
      step.argCount() == 2 ? deleteSetting(step.arg(0), step.arg(1)) : deleteSection(step.arg(0));
  return gone ? StepResult::kDone : step.fail("the setting cannot be deleted");
}

StepResult stepExpectRegistry(StepTry& step) {
  std::string text;
  bool there = readSetting(step.arg(0), step.arg(1), &text);
  if (there && wildcardMatch(step.arg(2), text)) {
    return StepResult::kDone;
  }
  std::string what = "expected " + step.arg(0) + " " + step.arg(1) + " \"" + step.arg(2) + "\": ";
  return step.again(what + (there ? "it is \"" + text + "\"" : "there is no such setting"), 5000);
}

StepResult stepScreenshot(StepTry& step) {
  std::string path = step.stage.paths.resolve(step.arg(0));
  return saveScreenshot(path) ? StepResult::kDone
                              : step.fail("no screenshot could be put in " + path);
}

StepResult stepMemory(StepTry& step) {
  MemoryCount count = countMemory();
  step.stage.log.emit(Event("memory")
                          .number("bytes", count.bytes)
                          .number("blocks", count.blocks)
                          .number("private", count.private_kilobytes)
                          .number("working-set", count.working_set_kilobytes));
  return StepResult::kDone;
}

// Open for writing and shared with nobody, until the next one.
StepResult stepHold(StepTry& step) {
  step.stage.held.reset();
  if (step.argCount() == 0) {
    return StepResult::kDone;
  }
  const std::string path = step.stage.paths.resolve(step.arg(0));
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    return step.fail("cannot be opened for writing: " + path);
  }
  step.stage.held.reset(file);
  return StepResult::kDone;
}

StepResult stepHandles(StepTry& step) {
  HandleCount count = countHandles();
  step.stage.log.emit(Event("handles")
                          .number("user", count.user)
                          .number("gdi", count.gdi)
                          .number("windows", count.windows)
                          .number("menus", count.menus));
  return StepResult::kDone;
}

}  // namespace workbench
