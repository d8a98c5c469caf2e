// Saving by the minute; what a make does to the windows is played by the scenarios.
#include "addon/behaviours/general_behaviours.h"

#include "addon/foundation/settings_store.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"

namespace {

void ticks(int count) {
  for (int i = 0; i < count; ++i) {
    kesto::generalBehaviours->timerTick();
  }
}

}  // namespace

TEST_CASE("modified buffers are saved when the minutes are over") {
  BarSession session;
  session.create();
  fake::Editor& editor = session.ide.editor;
  ticks(300);
  CHECK(editor.savings == 0);  // no project
  session.openProject("C:\\p.ide");
  ticks(300);
  CHECK(editor.savings == 1);
  // Nothing to save says nothing.
  CHECK(session.ide.status_line.texts.empty());
  ticks(299);
  session.openProject("C:\\q.ide");
  ticks(299);
  // A dialog is up: the time is over all the same.
  EnableWindow(session.windows.frame, FALSE);
  ticks(1);
  EnableWindow(session.windows.frame, TRUE);
  ticks(299);
  CHECK(editor.savings == 1);
}

TEST_CASE("periods of any size, and none") {
  const struct {
    int minutes;
    int on;
    int savings;  // after a hundred seconds
  } rows[] = {{1, 1, 1}, {2, 1, 0}, {2000000000, 1, 0}, {1, 0, 0}};
  for (const auto& row : rows) {
    BarSession session;
    kesto::settings().writeInteger("General", "TimerCount", row.minutes);
    kesto::settings().writeInteger("General", "TimerSave", row.on);
    session.create();
    session.openProject("C:\\p.ide");
    ticks(100);
    CHECK(session.ide.editor.savings == row.savings);
    kesto::generalBehaviours->settings.section.write();
    CHECK(kesto::settings().readInteger("General", "TimerCount", -1) == row.minutes);
    CHECK(kesto::settings().readInteger("General", "Unic", -1) == 0);
  }
}
