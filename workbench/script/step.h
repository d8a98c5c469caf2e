// One step of a script: what its verb does, and what it may ask. A step is tried
// on timer ticks, whenever the interface has come to rest, until it is done,
// fails, or has waited longer than its deadline. User-interface thread only.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "workbench/script/event_history.h"
#include "workbench/script/observer.h"
#include "workbench/script/other_ide.h"
#include "workbench/script/script_line.h"
#include "workbench/script/verbs.h"

namespace workbench {

class Building;
class Editing;
class MainWindow;
class MessageList;
class Paths;
class ProjectContent;
class Projects;
class Workbench;

// What all steps of a run share. All of it outlives the run.
struct Stage {
  Stage(Workbench& workbench, Observer& the_observer, EventHistory& the_history);

  MainWindow& window;
  Paths& paths;
  Editing& editing;
  Projects& projects;
  ProjectContent& content;
  Building& building;
  MessageList& messages;
  EventLog& log;
  Observer& observer;
  EventHistory& history;
  size_t wait_from = 0;             // where the next "wait" starts to look
  unsigned chosen_in = 0;           // serial of the menu whose entry was chosen, 0 before
  bool bar_opened = false;          // a menu bar was asked to open for this step
  bool quit = false;                // the script has asked to end
  std::map<int, long> rounds;       // done of each "end-repeat", by its line's number
  std::optional<size_t> next_line;  // where the script goes on, when not behind the step
  POINT last_click{-1000, -1000};
  DWORD last_click_ms = 0;   // as GetTickCount
  HWND elsewhere = nullptr;  // the window that takes the activation away
  OtherIde other_ide;        // the program that takes it away
  std::unique_ptr<void, BOOL(WINAPI*)(HANDLE)> held{nullptr, CloseHandle};  // a file
};

enum class StepResult { kDone, kAgain, kFailed };

// One try of a step.
class StepTry {
 public:
  StepTry(Stage& the_stage, const ScriptLine& the_line, unsigned waited, int tries)
      : stage(the_stage), line(the_line), waited_ms(waited), attempt(tries) {}

  const std::string& arg(size_t index) const { return line.args[index]; }
  size_t argCount() const { return line.args.size(); }

  StepResult fail(const std::string& text) {
    reason_ = text;
    return StepResult::kFailed;
  }
  // Not yet: try again on a later tick, and fail with this text after the deadline.
  StepResult again(const std::string& text, unsigned deadline_ms = 10000) {
    reason_ = text;
    return waited_ms < deadline_ms ? StepResult::kAgain : StepResult::kFailed;
  }
  const std::string& reason() const { return reason_; }

  // Numbers of an argument; false with the reason set when it is none.
  bool number(size_t index, long least, long most, long* value);

  Stage& stage;
  const ScriptLine& line;
  const unsigned waited_ms;
  const int attempt;  // 0 on the first try

 private:
  std::string reason_;
};

using Step = StepResult (*)(StepTry& step);

// The handler of a verb.
Step stepOf(Verb verb);

}  // namespace workbench
