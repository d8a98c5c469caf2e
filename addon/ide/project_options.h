// Options that belong to one project and are stored inside it by name: integers of
// 32 bits, and zero-terminated texts whose first character is a marker that readers
// skip. Each feature declares its own; their order is the project client's. Plain code.
#pragma once

#include <string>

namespace kesto {

// The bytes that the open project keeps under each name.
class ProjectOptionStore {
 public:
  virtual ~ProjectOptionStore() = default;
  // Returns the size that is claimed for *data, which lives until the next call.
  virtual int get(const char* name, const void** data) = 0;
  virtual void set(const char* name, const void* data, int size) = 0;
};

// Marker of entries of the delivery groups and of the recipients, and of other texts.
inline constexpr char kEntryMarker = '+';
inline constexpr char kTextMarker = '~';

// Entries that a stored list is believed to have at most.
inline constexpr int kOptionListLimit = 10000;

class ProjectOption;

// Options that are read and written one after the other, in the order of their declaration.
// They belong to it and must not outlive it.
class ProjectOptionGroup {
 public:
  ProjectOptionGroup() = default;
  ProjectOptionGroup(const ProjectOptionGroup&) = delete;
  ProjectOptionGroup& operator=(const ProjectOptionGroup&) = delete;

  void read(ProjectOptionStore& store);
  void write(ProjectOptionStore& store) const;
  // All have their defaults.
  void reset();

 private:
  friend class ProjectOption;
  ProjectOption* first_ = nullptr;
  ProjectOption** end_ = &first_;
};

class ProjectOption {
 public:
  ProjectOption(const ProjectOption&) = delete;
  ProjectOption& operator=(const ProjectOption&) = delete;

  // What is absent, or no value of its kind, reads as the default.
  virtual void read(ProjectOptionStore& store) = 0;
  virtual void write(ProjectOptionStore& store) const = 0;
  virtual void reset() = 0;

  const char* const name;

 protected:
  // The group may be null.
  ProjectOption(ProjectOptionGroup* group, const char* its_name);
  ~ProjectOption() = default;

 private:
  friend class ProjectOptionGroup;
  ProjectOption* next_ = nullptr;
};

struct IntegerOption final : ProjectOption {
  IntegerOption(ProjectOptionGroup& group, const char* its_name, int by_default)
      : ProjectOption(&group, its_name), default_value(by_default) {}
  IntegerOption(const char* its_name, int by_default)
      : ProjectOption(nullptr, its_name), default_value(by_default) {}

  // A value that is not four bytes long is none.
  void read(ProjectOptionStore& store) override;
  void write(ProjectOptionStore& store) const override;
  void reset() override { value = default_value; }

  const int default_value;
  int value = default_value;
};

struct TextOption final : ProjectOption {
  TextOption(ProjectOptionGroup& group, const char* its_name, char its_marker,
             const char* by_default)
      : ProjectOption(&group, its_name), marker(its_marker), default_value(by_default) {}
  TextOption(const char* its_name, char its_marker, const char* by_default)
      : ProjectOption(nullptr, its_name), marker(its_marker), default_value(by_default) {}

  void read(ProjectOptionStore& store) override;
  void write(ProjectOptionStore& store) const override;
  void reset() override { value = default_value; }

  const char marker;
  const char* const default_value;
  std::string value = default_value;
};

// The value is untouched when the project has no such option.
void readInteger(ProjectOptionStore& store, const char* name, int& value);
void readText(ProjectOptionStore& store, const char* name, std::string& value);
void writeInteger(ProjectOptionStore& store, const char* name, int value);
void writeText(ProjectOptionStore& store, const char* name, char marker, const std::string& text);

// The name of a list's entry: stem and number.
std::string entryOptionName(const char* stem, int index);

}  // namespace kesto
