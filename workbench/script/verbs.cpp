#include "workbench/script/verbs.h"

namespace workbench {
namespace {

constexpr Readiness kBeside = Readiness::kBesideBoxes;
constexpr Readiness kWithout = Readiness::kWithoutBox;
constexpr Readiness kHeldUp = Readiness::kHeldUp;

constexpr VerbInfo kVerbs[] = {
    {Verb::kActivate, kBeside, "activate", 0, 0, "activate"},
    {Verb::kAddNode, kWithout, "add-node", 3, 3, "add-node PARENT NAME TYPE"},
    {Verb::kAnswer, kBeside, "answer", 1, 1, "answer yes|no|ok|cancel|abort|retry|ignore"},
    {Verb::kBuildCommand, kWithout, "build-command", 1, 1, "build-command COMMAND"},
    {Verb::kCaret, kWithout, "caret", 2, 2, "caret LINE COL"},
    {Verb::kCheck, kWithout, "check", 2, 2, "check ID on|off"},
    {Verb::kChoose, kWithout, "choose", 1, 2,
     "choose \"MENU|ENTRY\", choose ID or choose #N, then perhaps Ctrl, Shift or Alt"},
    {Verb::kClickAt, kBeside, "click-at", 2, 2, "click-at X Y"},
    {Verb::kClickCaption, kWithout, "click-caption", 3, 3, "click-caption FILE X Y"},
    {Verb::kClickTitle, kWithout, "click-title", 2, 3, "click-title FILE 0|1|2 [left|right]"},
    {Verb::kClipboard, kBeside, "clipboard", 0, 8, "clipboard [FORMAT HEX]..."},
    {Verb::kClose, kWithout, "close", 0, 0, "close"},
    {Verb::kCloseFrame, kBeside, "close-frame", 0, 0, "close-frame"},
    {Verb::kCommand, kWithout, "command", 1, 1, "command ID"},
    {Verb::kDeactivate, kBeside, "deactivate", 0, 0, "deactivate"},
    {Verb::kDescribeNode, kWithout, "describe-node", 2, 2, "describe-node NODE TEXT"},
    {Verb::kDialog, kBeside, "dialog", 2, 4, "dialog CAPTION activate|close|size W H"},
    {Verb::kDocument, kBeside, "document", 2, 2,
     "document TITLE activate|minimize|maximize|restore"},
    {Verb::kDoubleClickTitle, kWithout, "double-click-title", 2, 2,
     "double-click-title FILE 0|1|2"},
    {Verb::kDump, kBeside, "dump", 1, 3,
     "dump menu|bar|editors|documents|windows|dialog|text|status|project|messages|clipboard "
     "[KEY VALUE]"},
    {Verb::kEcho, kHeldUp, "echo", 1, 1, "echo TEXT"},
    {Verb::kEdit, kWithout, "edit", 1, 2, "edit FILE [LINE]"},
    {Verb::kEndRepeat, kBeside, "end-repeat", 0, 0, "end-repeat"},
    {Verb::kEndSession, kBeside, "end-session", 0, 0, "end-session"},
    {Verb::kExpect, kHeldUp, "expect", 3, 3, "expect EVENT KEY VALUE"},
    {Verb::kExpectButtons, kBeside, "expect-buttons", 1, 2, "expect-buttons FILE [left|right]"},
    {Verb::kExpectHelp, kBeside, "expect-help", 1, 2, "expect-help TEXT [keep]"},
    {Verb::kExpectNot, kHeldUp, "expect-not", 1, 3, "expect-not EVENT [KEY VALUE]"},
    {Verb::kExpectRegistry, kBeside, "expect-registry", 3, 3, "expect-registry SECTION NAME TEXT"},
    {Verb::kHandles, kBeside, "handles", 0, 0, "handles"},
    {Verb::kHold, kBeside, "hold", 0, 1, "hold [PATH]"},
    {Verb::kKey, kHeldUp, "key", 1, 1, "key [Ctrl+][Alt+][Shift+]KEY"},
    {Verb::kMake, kWithout, "make", 0, 1, "make [ok|fail]"},
    {Verb::kMark, kHeldUp, "mark", 0, 0, "mark"},
    {Verb::kMaximize, kBeside, "maximize", 0, 0, "maximize"},
    {Verb::kMemory, kBeside, "memory", 0, 0, "memory"},
    {Verb::kMessageOpen, kWithout, "message-open", 1, 1, "message-open N"},
    {Verb::kMinimize, kBeside, "minimize", 0, 0, "minimize"},
    {Verb::kNewProject, kWithout, "new-project", 1, 1, "new-project FOLDER"},
    {Verb::kNodePath, kWithout, "node-path", 3, 3, "node-path NODE 1|3 FOLDERS"},
    {Verb::kOpen, kWithout, "open", 1, 1, "open PATH"},
    {Verb::kOption, kWithout, "option", 1, 2, "option NAME [VALUE]"},
    {Verb::kOtherIde, kBeside, "other-ide", 0, 1, "other-ide [plain]"},
    {Verb::kPress, kBeside, "press", 1, 1, "press ID"},
    {Verb::kQuit, kWithout, "quit", 0, 0, "quit"},
    {Verb::kRegistryDelete, kBeside, "registry-delete", 1, 2, "registry-delete SECTION [NAME]"},
    {Verb::kRegistrySet, kBeside, "registry-set", 3, 3, "registry-set SECTION NAME TEXT"},
    {Verb::kRemoveNode, kWithout, "remove-node", 1, 1, "remove-node NODE"},
    {Verb::kRenameNode, kWithout, "rename-node", 2, 2, "rename-node NODE NAME"},
    {Verb::kRepeat, kBeside, "repeat", 1, 1, "repeat N"},
    {Verb::kRestore, kBeside, "restore", 0, 0, "restore"},
    {Verb::kRightClickTitle, kWithout, "right-click-title", 1, 1, "right-click-title FILE"},
    {Verb::kSave, kWithout, "save", 0, 1, "save [FILE]"},
    {Verb::kSaveProject, kWithout, "save-project", 0, 0, "save-project"},
    {Verb::kScreenshot, kHeldUp, "screenshot", 1, 1, "screenshot FILE.bmp"},
    {Verb::kSelect, kWithout, "select", 4, 4, "select LINE COL LINE COL"},
    {Verb::kSelectItem, kWithout, "select-item", 2, 3, "select-item ID INDEX [off]"},
    {Verb::kSet, kWithout, "set", 2, 2, "set ID TEXT"},
    {Verb::kTick, kWithout, "tick", 1, 1, "tick N"},
    {Verb::kType, kWithout, "type", 1, 1, "type TEXT"},
    {Verb::kWait, kHeldUp, "wait", 1, 3, "wait EVENT [KEY VALUE]"},
    {Verb::kWaitFile, kBeside, "wait-file", 1, 1, "wait-file PATH"},
};
static_assert(sizeof kVerbs / sizeof *kVerbs == kVerbCount);

}  // namespace

const VerbInfo* findVerb(std::string_view name) {
  for (const VerbInfo& info : kVerbs) {
    if (info.name == name) {
      return &info;
    }
  }
  return nullptr;
}

}  // namespace workbench
