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

struct IntegerOption {
  const char* name;
  int default_value;
  int value = default_value;

  // A value that is absent or not four bytes long reads as the default.
  void read(ProjectOptionStore& store);
  void write(ProjectOptionStore& store) const;
};

struct TextOption {
  const char* name;
  char marker;
  const char* default_value;
  std::string value = default_value;

  void read(ProjectOptionStore& store);
  void write(ProjectOptionStore& store) const;
};

// The value is untouched when the project has no such option.
void readInteger(ProjectOptionStore& store, const char* name, int& value);
void readText(ProjectOptionStore& store, const char* name, std::string& value);
void writeInteger(ProjectOptionStore& store, const char* name, int value);
void writeText(ProjectOptionStore& store, const char* name, char marker, const std::string& text);

// The name of a list's entry: stem and number.
std::string entryOptionName(const char* stem, int index);

}  // namespace kesto
