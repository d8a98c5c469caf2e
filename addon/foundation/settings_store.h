// The settings store: registry values below one root key of HKEY_LOCAL_MACHINE,
// addressed by section (a subkey, which may itself hold "\") and name. All are
// stored as text. Nothing is cached, and reading never creates anything.
// User-interface thread.
#pragma once

#include <cstddef>

#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"

namespace kesto {

// What an entry of a list reads as that is not there.
inline constexpr char kMissingEntry[] = "not found";

class SettingsStore {
 public:
  // Bytes of a value that can be read, its terminator included; a longer one
  // counts as missing.
  static constexpr std::size_t kValueSize = 2000;
  // Entries that readList takes at most, whatever its count says.
  static constexpr int kListLimit = 10000;

  constexpr SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  ~SettingsStore();

  // Until a root is set, writes fail and reads find nothing.
  void setRoot(const char* path);

  // Creates the section when needed; false when the value could not be written.
  bool writeString(const char* section, const char* name, const char* text);
  bool writeInteger(const char* section, const char* name, int value);

  // Copies the value, cut to size, into output. A missing value is replaced by
  // default_text; without one (null) the result is false and output is untouched.
  bool readString(const char* section, const char* name, char* output, std::size_t size,
                  const char* default_text) const;
  int readInteger(const char* section, const char* name, int default_value) const;

  // A list: its count in the section as "Nb" + list, its entries as "Entry0" and so
  // on in the section's subsection list. Reading replaces the entries by at most limit
  // of them; one that is missing reads as "not found".
  void readList(const char* section, const char* list, Tableau<String>& entries,
                int limit = kListLimit) const;
  bool writeList(const char* section, const char* list, const Tableau<String>& entries);

 private:
  String keyPath(const char* section) const;
  bool readValue(const char* section, const char* name, char (&scratch)[kValueSize]) const;

  char* root_path_ = nullptr;
};

// The one store of the process.
SettingsStore& settings();

}  // namespace kesto
