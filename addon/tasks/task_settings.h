// Section "Tasks" of the settings. Plain, but for reading and writing it.
#pragma once

#include <cstddef>

#include "addon/foundation/setting.h"
#include "addon/tasks/task.h"

namespace kesto {

struct TaskSettings {
  // Characters of the joined types that are read and written at most.
  static constexpr std::size_t kTypesLimit = 511;

  SettingSection section{"Tasks"};
  // Whether the flash shows the tasks of a state.
  IntegerSetting flash[kTaskStates] = {{section, "FlashToDo", 1},
                                       {section, "FlashCoded", 1},
                                       {section, "FlashTested", 1},
                                       {section, "FlashEnded", 0}};
  IntegerSetting mail_on{section, "MainOn", 1};  // the end of a public task is told to others
  IntegerSetting key_is_delivery{section, "KeyIsDelivery", 1};  // 1: with the next delivery
  IntegerSetting ended_read_only{section, "EndedReadOnly", 1};
  IntegerSetting auto_flash{section, "AutoFlash", 1};
  // As they are stored; those in use are the task list's.
  TextSetting types{section, "Types", "Design;Evolution;Bug;Documentation", kTypesLimit};
};

}  // namespace kesto
