#include "addon/ide/environment.h"

#include <cstring>
#include <string>

#include "addon/ide/help_file.h"
#include "doctest.h"

TEST_CASE("systems are described, and told apart by their shell") {
  const struct {
    DWORD platform;
    DWORD major;
    DWORD minor;
    const char* description;
    BOOL new_shell;
  } rows[] = {
      {0, 3, 11, "Win32s on Windows 3.11", FALSE},
      {1, 4, 0, "Windows 95 (4.0)", TRUE},
      {1, 4, 10, "Windows 95 (4.10)", TRUE},
      {2, 3, 51, "Windows NT 3.51", FALSE},
      {2, 4, 0, "Windows NT 4.0", TRUE},
      {2, 10, 0, "Windows NT 10.0", TRUE},
      {3, 9, 9, "", FALSE},
  };
  for (const auto& row : rows) {
    CAPTURE(row.description);
    kesto::AddonEnvironment environment;
    environment.new_shell = TRUE;
    kesto::describeSystem(environment, row.platform, row.major, row.minor);
    CHECK(std::string(environment.os_description) == row.description);
    CHECK(environment.new_shell == row.new_shell);
  }
  kesto::AddonEnvironment widest;
  kesto::describeSystem(widest, 0, 2147483647, 2147483647);
  CHECK(strlen(widest.os_description) == 39);
}

TEST_CASE("the help file is the module's path with another extension") {
  const struct {
    const char* module;
    const char* help;  // null: refused
  } rows[] = {{"C:\\BC5\\BIN\\KESTOAOB.DLL", "C:\\BC5\\BIN\\KESTOAOB.hlp"},
              {".dll", ".hlp"},
              {"C:\\BC5\\kesto", nullptr},
              {"dll", nullptr},
              {"", nullptr},
              {"a.b.dl", nullptr}};
  for (const auto& row : rows) {
    char path[64];
    lstrcpynA(path, row.module, sizeof path);
    CAPTURE(row.module);
    CHECK(kesto::makeHelpPath(path) == (row.help != nullptr));
    CHECK(std::string(path) == (row.help != nullptr ? row.help : row.module));
  }
}
