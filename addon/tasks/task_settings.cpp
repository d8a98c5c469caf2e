#include "addon/tasks/task_settings.h"

#include "addon/foundation/settings_store.h"

namespace kesto {

namespace {

constexpr char kSection[] = "Tasks";
constexpr char kTypes[] = "Types";

struct Flag {
  const char* name;
  int& (*in)(TaskSettings&);
};
constexpr Flag kFlags[] = {
    {"FlashToDo", [](TaskSettings& s) -> int& { return s.flash[kToDo]; }},
    {"FlashCoded", [](TaskSettings& s) -> int& { return s.flash[kCoded]; }},
    {"FlashTested", [](TaskSettings& s) -> int& { return s.flash[kTested]; }},
    {"FlashEnded", [](TaskSettings& s) -> int& { return s.flash[kEnded]; }},
    {"MainOn", [](TaskSettings& s) -> int& { return s.mail_on; }},
    {"KeyIsDelivery", [](TaskSettings& s) -> int& { return s.key_is_delivery; }},
    {"EndedReadOnly", [](TaskSettings& s) -> int& { return s.ended_read_only; }},
    {"AutoFlash", [](TaskSettings& s) -> int& { return s.auto_flash; }},
};

}  // namespace

void readTaskSettings(TaskList& list) {
  list.settings = {};
  for (const Flag& flag : kFlags) {
    int& value = flag.in(list.settings);
    value = settings().readInteger(kSection, flag.name, value);
  }
  char types[TaskList::kTypesLimit + 1] = "";
  settings().readString(kSection, kTypes, types, sizeof types,
                        "Design;Evolution;Bug;Documentation");
  list.setTypes(types);
}

void writeTaskSettings(TaskList& list) {
  for (const Flag& flag : kFlags) {
    settings().writeInteger(kSection, flag.name, flag.in(list.settings));
  }
  settings().writeString(kSection, kTypes, list.joinedTypes());
}

}  // namespace kesto
