// The settings store on a registry key of the test's own.
#include "addon/foundation/settings_store.h"

#include <windows.h>

#include <cstring>
#include <string>

#include "doctest.h"
#include "tests/foundation/registry_tree.h"

namespace kesto {

namespace {

constexpr char kRoot[] = "Software\\KestoSettingsTest";

bool keyExists(const std::string& section) {
  HKEY key = nullptr;
  const std::string path = std::string(kRoot) + "\\" + section;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, path.c_str(), &key) != ERROR_SUCCESS) {
    return false;
  }
  RegCloseKey(key);
  return true;
}

// Stores bytes the way another program might.
void plant(const char* name, DWORD type, const std::string& bytes) {
  HKEY key = nullptr;
  REQUIRE(RegCreateKeyA(HKEY_LOCAL_MACHINE, (std::string(kRoot) + "\\Planted").c_str(), &key) ==
          ERROR_SUCCESS);
  RegSetValueExA(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                 static_cast<DWORD>(bytes.size()));
  RegCloseKey(key);
}

struct Store {
  Store() {
    removeTree(HKEY_LOCAL_MACHINE, kRoot);
    settings().setRoot("Software\\Elsewhere");
    settings().setRoot(kRoot);
  }
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;
  ~Store() { removeTree(HKEY_LOCAL_MACHINE, kRoot); }

  static std::string read(const char* section, const char* name, const char* default_text,
                          std::size_t size = 3000) {
    std::string output(size, '?');
    if (!settings().readString(section, name, output.data(), size, default_text)) {
      return output.substr(0, 1) + "missing";
    }
    output.resize(strlen(output.c_str()));
    return output;
  }
};

}  // namespace

TEST_CASE_FIXTURE(Store, "values written are read back, all as text") {
  CHECK(settings().writeString("General", "Name", "a text"));
  CHECK(settings().writeInteger("General", "Number", -1));
  CHECK(settings().writeString("Top\\Deep", "Name", ""));
  CHECK(read("General", "Name", "default") == "a text");
  CHECK(read("General", "Number", nullptr) == "-1");
  CHECK(settings().readInteger("General", "Number", 5) == -1);
  CHECK(read("Top\\Deep", "Name", "default").empty());
}

TEST_CASE_FIXTURE(Store, "what is missing yields the default and is not created") {
  CHECK(settings().readInteger("Menus", "Size", 50) == 50);
  CHECK(read("Menus", "Name", "default") == "default");
  CHECK(read("Menus", "Name", nullptr) == "?missing");
  CHECK_FALSE(keyExists("Menus"));
  CHECK_FALSE(keyExists(""));
}

TEST_CASE_FIXTURE(Store, "values of any length and kind") {
  settings().writeString("Planted", "long", std::string(1999, 'x').c_str());
  CHECK(read("Planted", "long", "default") == std::string(1999, 'x'));
  CHECK(read("Planted", "long", "default", 5) == "xxxx");
  settings().writeString("Planted", "longer", std::string(2000, 'x').c_str());
  CHECK(read("Planted", "longer", "default") == "default");
  plant("unterminated", REG_BINARY, "abc");
  CHECK(read("Planted", "unterminated", "default") == "ab");
  settings().writeString("Planted", "words", "many words");
  CHECK(settings().readInteger("Planted", "words", 3) == 3);
  settings().writeString("Planted", "digits", (std::string(60, '0') + "7").c_str());
  CHECK(settings().readInteger("Planted", "digits", 3) == 0);
}

TEST_CASE_FIXTURE(Store, "lists") {
  Tableau<String> entries;
  entries.append(new String("one.kwd"));
  entries.append(new String("two.kwd"));
  CHECK(settings().writeList("Completion", "Files", entries));
  CHECK(settings().readInteger("Completion", "NbFiles", 0) == 2);
  CHECK(read("Completion\\Files", "Entry1", nullptr) == "two.kwd");
  settings().writeInteger("Completion", "NbFiles", 3);
  settings().readList("Completion", "Files", entries);
  REQUIRE(entries.count() == 3);
  CHECK(*entries.at(0) == "one.kwd");
  CHECK(*entries.at(2) == "not found");
  for (const int count : {-5, 0}) {
    settings().writeInteger("Completion", "NbFiles", count);
    settings().readList("Completion", "Files", entries);
    CHECK(entries.count() == 0);
  }
  settings().writeInteger("Completion", "NbFiles", 2000000000);
  settings().readList("Completion", "Files", entries);
  CHECK(entries.count() == SettingsStore::kListLimit);
}

TEST_CASE("a store without a root fails and finds nothing") {
  SettingsStore store;
  char text[8] = "before";
  CHECK_FALSE(store.writeString("General", "Name", "x"));
  CHECK_FALSE(store.readString("General", "Name", text, sizeof text, nullptr));
  CHECK(std::string(text) == "before");
}

}  // namespace kesto
