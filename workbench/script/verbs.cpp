#include "workbench/script/verbs.h"

namespace workbench {
namespace {

constexpr Readiness kBeside = Readiness::kBesideBoxes;
constexpr Readiness kWithout = Readiness::kWithoutBox;

constexpr VerbInfo kVerbs[] = {
    {Verb::kActivate, "activate", 0, 0, kBeside, "activate"},
    {Verb::kAnswer, "answer", 1, 1, kBeside, "answer yes|no|ok|cancel|abort|retry|ignore"},
    {Verb::kCaret, "caret", 2, 2, kWithout, "caret LINE COL"},
    {Verb::kCheck, "check", 2, 2, kWithout, "check ID on|off"},
    {Verb::kChoose, "choose", 1, 1, kWithout, "choose \"MENU|ENTRY\", choose ID or choose #N"},
    {Verb::kClickAt, "click-at", 2, 2, kBeside, "click-at X Y"},
    {Verb::kClickCaption, "click-caption", 3, 3, kWithout, "click-caption FILE X Y"},
    {Verb::kClickTitle, "click-title", 2, 3, kWithout, "click-title FILE 0|1|2 [left|right]"},
    {Verb::kClose, "close", 0, 0, kWithout, "close"},
    {Verb::kCommand, "command", 1, 1, kWithout, "command ID"},
    {Verb::kDeactivate, "deactivate", 0, 0, kBeside, "deactivate"},
    {Verb::kDump, "dump", 1, 1, kBeside, "dump menu|bar|editors|windows|dialog|text|project"},
    {Verb::kEcho, "echo", 1, 1, kBeside, "echo TEXT"},
    {Verb::kEdit, "edit", 1, 2, kWithout, "edit FILE [LINE]"},
    {Verb::kExpect, "expect", 3, 3, kBeside, "expect EVENT KEY VALUE"},
    {Verb::kExpectNot, "expect-not", 1, 3, kBeside, "expect-not EVENT [KEY VALUE]"},
    {Verb::kExpectRegistry, "expect-registry", 3, 3, kBeside, "expect-registry SECTION NAME TEXT"},
    {Verb::kHandles, "handles", 0, 0, kBeside, "handles"},
    {Verb::kKey, "key", 1, 1, kBeside, "key [Ctrl+][Alt+][Shift+]KEY"},
    {Verb::kMake, "make", 0, 1, kWithout, "make [ok|fail]"},
    {Verb::kMark, "mark", 0, 0, kBeside, "mark"},
    {Verb::kMinimize, "minimize", 0, 0, kBeside, "minimize"},
    {Verb::kOpen, "open", 1, 1, kWithout, "open PATH"},
    {Verb::kPress, "press", 1, 1, kBeside, "press ID"},
    {Verb::kQuit, "quit", 0, 0, kWithout, "quit"},
    {Verb::kRegistryDelete, "registry-delete", 1, 2, kBeside, "registry-delete SECTION [NAME]"},
    {Verb::kRegistrySet, "registry-set", 3, 3, kBeside, "registry-set SECTION NAME TEXT"},
    {Verb::kRestore, "restore", 0, 0, kBeside, "restore"},
    {Verb::kRightClickTitle, "right-click-title", 1, 1, kWithout, "right-click-title FILE"},
    {Verb::kSave, "save", 0, 1, kWithout, "save [FILE]"},
    {Verb::kScreenshot, "screenshot", 1, 1, kBeside, "screenshot FILE.bmp"},
    {Verb::kSelect, "select", 4, 4, kWithout, "select LINE COL LINE COL"},
    {Verb::kSelectItem, "select-item", 2, 2, kWithout, "select-item ID INDEX"},
    {Verb::kSet, "set", 2, 2, kWithout, "set ID TEXT"},
    {Verb::kTick, "tick", 1, 1, kWithout, "tick N"},
    {Verb::kType, "type", 1, 1, kWithout, "type TEXT"},
    {Verb::kWait, "wait", 1, 3, kBeside, "wait EVENT [KEY VALUE]"},
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
