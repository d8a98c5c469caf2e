#include "addon/ide/project_options.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace kesto {
namespace {

constexpr int kIntegerSize = 4;
static_assert(sizeof(std::int32_t) == kIntegerSize);

// No text of an option is longer, whatever its size says.
constexpr int kLongestText = 65535;

}  // namespace

void readInteger(ProjectOptionStore& store, const char* name, int& value) {
  const void* data = nullptr;
  if (store.get(name, &data) != kIntegerSize || data == nullptr) {
    return;
  }
  std::int32_t stored = 0;
  memcpy(&stored, data, sizeof stored);
  value = stored;
}

void readText(ProjectOptionStore& store, const char* name, std::string& value) {
  const void* data = nullptr;
  const int size = store.get(name, &data);
  if (size <= 0 || data == nullptr) {
    return;
  }
  const char* text = static_cast<const char*>(data);
  value.clear();
  if (*text == '\0') {
    return;
  }
  // One by one: what lies behind the terminator may not be there at all.
  const int end = std::min(size, kLongestText);
  for (int i = 1; i < end && text[i] != '\0'; ++i) {
    value += text[i];
  }
}

void writeInteger(ProjectOptionStore& store, const char* name, int value) {
  const std::int32_t stored = value;
  store.set(name, &stored, kIntegerSize);
}

void writeText(ProjectOptionStore& store, const char* name, char marker, const std::string& text) {
  const std::string stored = marker + text;
  store.set(name, stored.c_str(), static_cast<int>(strlen(stored.c_str())) + 1);
}

ProjectOption::ProjectOption(ProjectOptionGroup* group, const char* its_name) : name(its_name) {
  if (group != nullptr) {
    *group->end_ = this;
    group->end_ = &next_;
  }
}

void ProjectOptionGroup::read(ProjectOptionStore& store) {
  for (ProjectOption* option = first_; option != nullptr; option = option->next_) {
    option->read(store);
  }
}

void ProjectOptionGroup::write(ProjectOptionStore& store) const {
  for (const ProjectOption* option = first_; option != nullptr; option = option->next_) {
    option->write(store);
  }
}

void ProjectOptionGroup::reset() {
  for (ProjectOption* option = first_; option != nullptr; option = option->next_) {
    option->reset();
  }
}

void IntegerOption::read(ProjectOptionStore& store) {
  reset();
  readInteger(store, name, value);
}

void IntegerOption::write(ProjectOptionStore& store) const {
  writeInteger(store, name, value);
}

void TextOption::read(ProjectOptionStore& store) {
  reset();
  readText(store, name, value);
}

void TextOption::write(ProjectOptionStore& store) const {
  writeText(store, name, marker, value);
}

std::string entryOptionName(const char* stem, int index) {
  return stem + std::to_string(index);
}

}  // namespace kesto
