// The verbs of a script: names, how many arguments each takes, and what may be
// open on the screen when its step runs. Plain values.
#pragma once

#include <cstddef>
#include <string_view>

namespace workbench {

enum class Verb {
  kActivate,
  kAddNode,
  kAnswer,
  kBuildCommand,
  kCaret,
  kCheck,
  kChoose,
  kClickAt,
  kClickCaption,
  kClickTitle,
  kClipboard,
  kClose,
  kCloseFrame,
  kCommand,
  kDeactivate,
  kDescribeNode,
  kDialog,
  kDocument,
  kDoubleClickTitle,
  kDump,
  kEcho,
  kEdit,
  kEndRepeat,
  kEndSession,
  kExpect,
  kExpectButtons,
  kExpectHelp,
  kExpectNot,
  kExpectRegistry,
  kHandles,
  kHold,
  kKey,
  kMake,
  kMark,
  kMaximize,
  kMemory,
  kMessageOpen,
  kMinimize,
  kNewProject,
  kNodePath,
  kOpen,
  kOption,
  kOtherIde,
  kPress,
  kQuit,
  kRegistryDelete,
  kRegistrySet,
  kRemoveNode,
  kRenameNode,
  kRepeat,
  kRestore,
  kRightClickTitle,
  kSave,
  kSaveProject,
  kScreenshot,
  kSelect,
  kSelectItem,
  kSet,
  kTick,
  kType,
  kWait,
  kWaitFile,
};
inline constexpr size_t kVerbCount = static_cast<size_t>(Verb::kWaitFile) + 1;

// Whether a step waits while a message box that nobody has answered is open.
enum class Readiness {
  kBesideBoxes,  // does not wait
  kHeldUp,       // nor for a call that holds up the thread, once that lasts
  kWithoutBox,   // waits for the box to go
};

struct VerbInfo {
  Verb verb;
  Readiness readiness;
  std::string_view name;
  size_t min_args;
  size_t max_args;
  std::string_view usage;
};

// Returns null for a name that is no verb.
const VerbInfo* findVerb(std::string_view name);

}  // namespace workbench
