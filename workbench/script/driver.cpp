#include "workbench/script/driver.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "workbench/events/event_log.h"
#include "workbench/script/step.h"
#include "workbench/script/watchdog.h"
#include "workbench/workbench.h"

namespace workbench {
namespace {

constexpr UINT kTickMs = 10;
// A step comes after so many ticks that found no message waiting ...
constexpr int kCalmTicks = 2;
// ... or, when something keeps the queue filled, after this time.
constexpr DWORD kBusyMs = 2000;
constexpr DWORD kBoxMs = 3000;
constexpr DWORD kCloseMs = 20000;
// A call that has let no tick through for this time holds up the thread.
constexpr DWORD kHeldMs = 1000;

bool queueEmpty() {
  DWORD waiting =
      GetQueueStatus(QS_POSTMESSAGE | QS_SENDMESSAGE | QS_KEY | QS_MOUSEBUTTON | QS_PAINT);
  return HIWORD(waiting) == 0;
}

enum class Phase { kSteps, kClosing, kEnded };

}  // namespace

struct ScriptDriver::State {
  explicit State(Workbench& bench) : workbench(bench) {}

  void begin();
  void tick();
  bool calm();
  void tryStep();
  void tryStepsHeldUp();
  void close();
  void tidyUp();
  void frameGone();
  void fail(const std::string& text);
  void end(int code);
  void nextLine();
  int lineNumber() const;
  DWORD waited() const { return GetTickCount() - waiting_since; }

  static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD);

  Workbench& workbench;
  std::string script;
  std::vector<ScriptLine> lines;
  EventHistory history;
  std::unique_ptr<Observer> observer;
  std::unique_ptr<Stage> stage;
  UINT_PTR timer = 0;
  Phase phase = Phase::kSteps;
  size_t next = 0;
  int attempt = 0;
  DWORD waiting_since = 0;  // when the step was first looked at
  DWORD busy_since = 0;     // when the last step was tried
  DWORD ticked_at = 0;      // when the timer last came
  int calm_ticks = 0;
  int under_way = 0;  // steps whose call has not returned
  int exit_code = 0;
};

namespace {
// The timer's procedure is given nothing to find its driver with.
void* g_running = nullptr;
}  // namespace

void ScriptDriver::State::begin() {
  observer = std::make_unique<Observer>(workbench, workbench.events());
  observer->onFrameGone([](void* state) { static_cast<State*>(state)->frameGone(); }, this);
  stage.reset(new Stage(workbench, *observer, history));
  Watchdog::instance().start();
  waiting_since = busy_since = ticked_at = GetTickCount();
  g_running = this;
  timer = SetTimer(nullptr, 0, kTickMs, onTimer);
  ScriptError error;
  if (!parseScript(script, &lines, &error)) {
    workbench.events().emit(Event("error").number("line", error.line).text("text", error.text));
    end(1);
  }
}

void CALLBACK ScriptDriver::State::onTimer(HWND, UINT, UINT_PTR, DWORD) {
  if (g_running != nullptr) {
    static_cast<State*>(g_running)->tick();
  }
}

void ScriptDriver::State::tick() {
  ticked_at = GetTickCount();
  if (phase == Phase::kEnded) {
    tidyUp();
    return;
  }
  std::string fault;
  if (!observer->windows().serve(&fault)) {
    fail(fault);
    return;
  }
  bool modal = observer->menu() != nullptr || observer->windows().anyModal();
  if ((under_way > 0 && !modal) || !calm()) {
    return;
  }
  if (phase == Phase::kClosing || stage->quit || next == lines.size()) {
    close();
  } else {
    tryStep();
  }
}

bool ScriptDriver::State::calm() {
  calm_ticks = queueEmpty() ? calm_ticks + 1 : 0;
  if (calm_ticks < kCalmTicks && GetTickCount() - busy_since < kBusyMs) {
    return false;
  }
  calm_ticks = 0;
  busy_since = GetTickCount();
  return true;
}

void ScriptDriver::State::tryStep() {
  const ScriptLine& line = lines[next];
  const VerbInfo* verb = findVerb(line.verb);
  std::string box;
  // Later tries may well stand beside the box that the step itself brought about.
  if (attempt == 0 && verb->readiness == Readiness::kWithoutBox &&
      observer->windows().boxWaits(&box)) {
    if (waited() > kBoxMs) {
      fail("a message box waits for an answer: " + box);
    }
    return;
  }
  // The step may last: a box that it shows is answered by the steps after it.
  size_t current = next++;
  StepTry step(*stage, line, waited(), attempt++);
  ++under_way;
  StepResult result = stepOf(verb->verb)(step);
  --under_way;
  if (phase == Phase::kEnded) {
    return;
  }
  if (result == StepResult::kAgain) {
    next = current;
  } else if (result == StepResult::kFailed) {
    next = current;
    fail(step.reason());
  } else if (next == current + 1) {
    next = std::exchange(stage->next_line, std::nullopt).value_or(next);
    nextLine();
  }
}

// Called from within what holds up the thread, at what it tells: a person looks on and
// presses keys meanwhile.
void ScriptDriver::State::tryStepsHeldUp() {
  while (phase == Phase::kSteps && stage != nullptr && next < lines.size() &&
         GetTickCount() - ticked_at >= kHeldMs &&
         findVerb(lines[next].verb)->readiness == Readiness::kHeldUp) {
    const size_t tried = next;
    tryStep();
    if (next == tried) {
      return;
    }
  }
}

void ScriptDriver::State::nextLine() {
  attempt = 0;
  stage->chosen_in = 0;
  waiting_since = GetTickCount();
  Watchdog::instance().progress(lineNumber());
}

int ScriptDriver::State::lineNumber() const {
  if (lines.empty()) {
    return 0;
  }
  return next < lines.size() ? lines[next].number : lines.back().number;
}

void ScriptDriver::State::close() {
  std::string box;
  if (phase == Phase::kSteps) {
    // A dialog that leaves the frame enabled may stay open to the end.
    bool menu = observer->menu() != nullptr;
    bool held = observer->windows().boxOpen() || !IsWindowEnabled(workbench.frame());
    if (menu || held || under_way > 0) {
      if (waited() > kBoxMs) {
        fail(menu ? "the script ends while a menu is open"
                  : "the script ends while a box or dialog is open");
      }
      return;
    }
    phase = Phase::kClosing;
    waiting_since = GetTickCount();
    PostMessageA(workbench.frame(), WM_CLOSE, 0, 0);
  } else if (observer->windows().boxWaits(&box)) {
    if (waited() > kBoxMs) {
      fail("an unexpected message box on closing: " + box);
    }
  } else if (waited() > kCloseMs) {
    fail("the frame does not close");
  }
}

// The message loop ends with the frame, so this is the last word of a good run.
void ScriptDriver::State::frameGone() {
  if (phase == Phase::kEnded) {
    return;
  }
  // An entry such as "Exit" closes the frame before its step can see it done.
  size_t left = stage->chosen_in != 0 ? next + 1 : next;
  bool all_done = stage->quit || left >= lines.size() || lines[left].verb == "quit";
  if (!all_done) {
    fail("the frame has closed before this step");
  } else if (observer->windows().unusedAnswers() != 0) {
    fail("a message box that was given an answer has not come");
  } else {
    end(0);
  }
}

void ScriptDriver::State::fail(const std::string& text) {
  workbench.events().emit(Event("error").number("line", lineNumber()).text("text", text));
  end(1);
}

void ScriptDriver::State::end(int code) {
  phase = Phase::kEnded;
  exit_code = code;
  Watchdog::instance().ending(code);
  PostQuitMessage(code);
}

// A failed run leaves menus, boxes and dialogs behind, each with a loop of its own.
void ScriptDriver::State::tidyUp() {
  if (exit_code == 0) {
    return;
  }
  if (const MenuLoop* menu = observer->menu()) {
    PostMessageA(menu->owner, WM_KEYDOWN, VK_ESCAPE, 1);
  }
  observer->windows().dismissAll();
  PostQuitMessage(exit_code);
}

ScriptDriver::ScriptDriver(Workbench& workbench) : state_(new State(workbench)) {
  State* state = state_.get();
  workbench.events().setListener([state](const Event& event) {
    state->history.add(event);
    Watchdog::instance().alive();
    if (event.name() == "status") {
      state->tryStepsHeldUp();
    }
  });
}

ScriptDriver::~ScriptDriver() {
  if (state_->timer != 0) {
    KillTimer(nullptr, state_->timer);
  }
  g_running = nullptr;
  state_->workbench.events().setListener({});
  if (state_->stage != nullptr && state_->stage->elsewhere != nullptr) {
    DestroyWindow(state_->stage->elsewhere);
  }
}

bool ScriptDriver::load(const std::string& path) {
  bool standard = path == "-";
  std::FILE* file = standard ? stdin : std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    return false;
  }
  char buffer[4096];
  size_t got = 0;
  while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
    state_->script.append(buffer, got);
  }
  bool failed = std::ferror(file) != 0;
  if (!standard) {
    std::fclose(file);
  }
  return !failed;
}

void ScriptDriver::start() {
  state_->begin();
}

}  // namespace workbench
