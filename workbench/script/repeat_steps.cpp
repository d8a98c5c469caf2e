#include "workbench/script/steps.h"

namespace workbench {

StepResult stepRepeat(StepTry&) {
  return StepResult::kDone;
}

StepResult stepEndRepeat(StepTry& step) {
  long& done = step.stage.rounds[step.line.number];
  if (++done < step.line.rounds) {
    step.stage.next_line = step.line.first_repeated;
  } else {
    done = 0;
  }
  return StepResult::kDone;
}

}  // namespace workbench
