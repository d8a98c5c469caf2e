#include "addon/pages/task_page.h"

#include "addon/ide/help_topics.h"
#include "addon/pages/page_ids.h"
#include "addon/tasks/task_dialog.h"
#include "addon/tasks/task_list.h"

namespace kesto {
namespace {

constexpr const char* kFlashHelp[] = {"Show ToDo tasks in flash", "Show Coded tasks in flash",
                                      "Show Tested tasks in flash", "Show Ended tasks in flash"};
static_assert(TASK_FLASH_LAST - TASK_FLASH_FIRST + 1 == kTaskStates);

}  // namespace

TaskPage::TaskPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Task management", "set task management options",
                    kHelpPageTask) {}

void TaskPage::exchange(PageExchange& controls) {
  if (taskList == nullptr) {
    return;
  }
  TaskSettings& settings = taskList->settings;
  for (int state = 0; state < kTaskStates; ++state) {
    controls.flag(TASK_FLASH_FIRST + state, kFlashHelp[state], settings.flash[state].value);
  }
  controls.flag(TASK_AUTO_FLASH, "Open Quick Flash when project opens (only once a day)",
                settings.auto_flash.value);
  controls.flag(TASK_MAIL_ON, "Mail ended public tasks to other users", settings.mail_on.value);
  controls.choice(TASK_MAIL_AT_ONCE, "Send mail when task ends", settings.key_is_delivery.value, 0);
  controls.choice(TASK_MAIL_WITH_DELIVERY, "Send mail with the next delivery",
                  settings.key_is_delivery.value, 1);
  controls.flag(TASK_ENDED_READ_ONLY, "Set ended task to read-only mode",
                settings.ended_read_only.value);
  if (controls.fills()) {
    settings.types.value = taskList->joinedTypes().text();
  }
  controls.text(TASK_TYPES, "Set task types", settings.types.value, settings.types.limit);
}

void TaskPage::stored(HWND) {
  if (taskList == nullptr) {
    return;
  }
  taskList->setTypes(taskList->settings.types.value);
  taskList->settings.types.value = taskList->joinedTypes().text();
  taskList->settings.section.write();
  if (taskDialog != nullptr) {
    taskDialog->settingsChanged();
  }
}

}  // namespace kesto
