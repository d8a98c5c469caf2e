#include "workbench/script/step.h"

#include <charconv>

#include "workbench/script/steps.h"
#include "workbench/workbench.h"

namespace workbench {

Stage::Stage(Workbench& workbench, Observer& the_observer, EventHistory& the_history)
    : window(workbench),
      paths(workbench),
      editing(workbench),
      projects(workbench),
      content(workbench),
      building(workbench),
      messages(workbench),
      log(workbench.events()),
      observer(the_observer),
      history(the_history) {}

bool StepTry::number(size_t index, long least, long most, long* value) {
  const std::string& text = arg(index);
  long read = 0;
  auto [stop, fault] = std::from_chars(text.data(), text.data() + text.size(), read);
  if (fault != std::errc() || stop != text.data() + text.size() || read < least || read > most) {
    reason_ = "\"" + text + "\" is no number from " + std::to_string(least) + " to " +
              std::to_string(most);
    return false;
  }
  *value = read;
  return true;
}

Step stepOf(Verb verb) {
  switch (verb) {
    case Verb::kActivate:
      return stepActivate;
    case Verb::kAddNode:
      return stepAddNode;
    case Verb::kAnswer:
      return stepAnswer;
    case Verb::kBuildCommand:
      return stepBuildCommand;
    case Verb::kCaret:
      return stepCaret;
    case Verb::kCheck:
      return stepCheck;
    case Verb::kChoose:
      return stepChoose;
    case Verb::kClickAt:
      return stepClickAt;
    case Verb::kClickCaption:
      return stepClickCaption;
    case Verb::kClickTitle:
      return stepClickTitle;
    case Verb::kClipboard:
      return stepClipboard;
    case Verb::kClose:
      return stepClose;
    case Verb::kCloseFrame:
      return stepCloseFrame;
    case Verb::kCommand:
      return stepCommand;
    case Verb::kDeactivate:
      return stepDeactivate;
    case Verb::kDescribeNode:
      return stepDescribeNode;
    case Verb::kDialog:
      return stepDialog;
    case Verb::kDocument:
      return stepDocument;
    case Verb::kDoubleClickTitle:
      return stepDoubleClickTitle;
    case Verb::kDump:
      return stepDump;
    case Verb::kEcho:
      return stepEcho;
    case Verb::kEdit:
      return stepEdit;
    case Verb::kEndRepeat:
      return stepEndRepeat;
    case Verb::kEndSession:
      return stepEndSession;
    case Verb::kExpect:
      return stepExpect;
    case Verb::kExpectButtons:
      return stepExpectButtons;
    case Verb::kExpectHelp:
      return stepExpectHelp;
    case Verb::kExpectNot:
      return stepExpectNot;
    case Verb::kExpectRegistry:
      return stepExpectRegistry;
    case Verb::kHandles:
      return stepHandles;
    case Verb::kHold:
      return stepHold;
    case Verb::kKey:
      return stepKey;
    case Verb::kMake:
      return stepMake;
    case Verb::kMark:
      return stepMark;
    case Verb::kMaximize:
      return stepMaximize;
    case Verb::kMemory:
      return stepMemory;
    case Verb::kMessageOpen:
      return stepMessageOpen;
    case Verb::kMinimize:
      return stepMinimize;
    case Verb::kNewProject:
      return stepNewProject;
    case Verb::kNodePath:
      return stepNodePath;
    case Verb::kOpen:
      return stepOpen;
    case Verb::kOption:
      return stepOption;
    case Verb::kOtherIde:
      return stepOtherIde;
    case Verb::kPress:
      return stepPress;
    case Verb::kQuit:
      return stepQuit;
    case Verb::kRegistryDelete:
      return stepRegistryDelete;
    case Verb::kRegistrySet:
      return stepRegistrySet;
    case Verb::kRemoveNode:
      return stepRemoveNode;
    case Verb::kRenameNode:
      return stepRenameNode;
    case Verb::kRepeat:
      return stepRepeat;
    case Verb::kRestore:
      return stepRestore;
    case Verb::kRightClickTitle:
      return stepRightClickTitle;
    case Verb::kSave:
      return stepSave;
    case Verb::kSaveProject:
      return stepSaveProject;
    case Verb::kScreenshot:
      return stepScreenshot;
    case Verb::kSelect:
      return stepSelect;
    case Verb::kSelectItem:
      return stepSelectItem;
    case Verb::kSet:
      return stepSet;
    case Verb::kTick:
      return stepTick;
    case Verb::kType:
      return stepType;
    case Verb::kWait:
      return stepWait;
    case Verb::kWaitFile:
      return stepWaitFile;
  }
  return nullptr;
}

}  // namespace workbench
