// The run at a make's start, and the stamping of versions. data/resource.version stamped
// with build number 1 must be data/resource.stamped.
#include "addon/rcgen/generator_run.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "addon/foundation/path.h"
#include "addon/rcgen/class_unit.h"
#include "addon/rcgen/version_stamp.h"
#include "doctest.h"
#include "tests/data_file.h"
#include "tests/rcgen/played_files.h"
#include "tests/rcgen/text_count.h"

namespace kesto {

namespace {

constexpr GeneratorSwitches kClasses = {true, false};
constexpr GeneratorSwitches kVersions = {false, true};

std::string ran(PlayedFiles& files, GeneratorSwitches switches, std::int32_t& build_number) {
  files.takeDone();
  runGenerator(files, "P", switches, build_number);
  return files.takeDone();
}

std::string written(const std::string& stem) {
  return "remove " + stem + ".h\nwrite " + stem + ".h\nremove " + stem + ".cpp\nwrite " + stem +
         ".cpp\n";
}

}  // namespace

TEST_CASE("when a unit is out of date") {
  using Time = std::optional<std::int64_t>;
  struct Row {
    Time header;
    Time implementation;
    std::vector<Time> scripts;
    bool expected;
  };
  const Row rows[] = {
      {{}, 5, {}, true},    {5, {}, {}, true}, {5, 6, {}, false},      {5, 6, {5, 4}, false},
      {5, 6, {4, 6}, true}, {6, 5, {6}, true}, {5, 5, {Time()}, true},
  };
  for (const Row& row : rows) {
    CHECK(isOutOfDate(row.header, row.implementation, row.scripts) == row.expected);
  }
}

// Every dialog has a stub for each item of the menu.
TEST_CASE("classes longer than their scripts are written in pieces") {
  std::string script = "#define IDM_ITEM 1\nM MENU\n{\n";
  for (int i = 0; i < 255; ++i) {
    script += "MENUITEM \"\", IDM_ITEM\n";
  }
  script += "}\n";
  for (int i = 0; i < 60; ++i) {
    script += "D DIALOG 1\nMENU M\n{\n}\n";
  }
  PlayedFiles files;
  files.scripts["P"] = {"a.rc"};
  files.put("P\\a.rc", script);
  std::int32_t build_number = 0;
  const std::string done = ran(files, kClasses, build_number);
  CHECK(done.find(written("P\\rc") + "append P\\rc.h\nappend P\\rc.cpp\n") != std::string::npos);
  const std::string& header = files.files["P\\rc.h"].text;
  const std::string& implementation = files.files["P\\rc.cpp"].text;
  CHECK(count(header, "class rcD : public Dialog\n") == 60);
  CHECK(header.ends_with("} ;\n\n#endif\n"));
  CHECK(count(implementation, "    case 1 : return(mnuITEM()) ;\n") == 60 * 255);
  CHECK(implementation.ends_with("}\n\n\nRCRCMAIN\n\n"));

  // What could not be created is not gone on with.
  files.files.clear();
  files.put("P\\a.rc", script);
  files.locked = true;
  CHECK(ran(files, kClasses, build_number).find("append") == std::string::npos);
}

TEST_CASE("units are made in order, each when something of its own changed") {
  PlayedFiles files;
  std::int32_t build_number = 0;
  files.directories["P"] = {".", "..", "src", "res"};
  files.links["P"] = {"link"};
  files.directories["P\\src"] = {"deeper"};
  files.scripts["P"] = {"a.rc", ".b.rc"};
  files.scripts["P\\res"] = {"c.rc", "d.rc"};
  files.put("P\\a.rc", "A DIALOG 1\n}\n");
  files.put("P\\res\\c.rc", "C DIALOG 1\n}\n");
  files.put("P\\res\\d.rc", "D DIALOG 1\n}\n");

  CHECK(ran(files, {false, false}, build_number).empty());
  CHECK(ran(files, kClasses, build_number) ==
        "list P\nlist P\\src\n" + written("P\\src\\rcsrc") +
            "list P\\res\nread P\\res\\c.rc\nread P\\res\\d.rc\n" + written("P\\res\\rcres") +
            "read P\\a.rc\n" + written("P\\rc"));
  const std::string& header = files.files["P\\res\\rcres.h"].text;
  CHECK(header.find("class rcC ") < header.find("class rcD "));
  CHECK(header.ends_with("\n#endif\n"));
  CHECK(files.files["P\\rc.h"].text.starts_with(
      "// Generated file : do not edit by hand\n#ifndef _rc_h_\n#define _rc_h_\n"));
  CHECK(files.files["P\\rc.cpp"].text.ends_with("}\n\n\nRCRCMAIN\n\n"));
  CHECK(files.files["P\\res\\rcres.cpp"].text.find("RCRCMAIN") == std::string::npos);

  const std::string listed = "list P\nlist P\\src\nlist P\\res\n";
  CHECK(ran(files, kClasses, build_number) == listed);

  files.now = 101;
  files.put("P\\res\\d.rc", "E DIALOG 1\n}\n");
  CHECK(ran(files, kClasses, build_number) ==
        listed + "read P\\res\\c.rc\nread P\\res\\d.rc\n" + written("P\\res\\rcres"));

  // A script that cannot be had is left out, and asks for its unit every time.
  files.files.erase("P\\res\\d.rc");
  for (int i = 0; i < 2; ++i) {
    CHECK(ran(files, kClasses, build_number) ==
          listed + "read P\\res\\c.rc\nread P\\res\\d.rc\n" + written("P\\res\\rcres"));
  }
  CHECK(files.files["P\\res\\rcres.h"].text.find("class rcE") == std::string::npos);
  CHECK(build_number == 0);
}

TEST_CASE("a version resource is stamped as written out") {
  std::int32_t build_number = 1;
  const std::string source = tests::contents(TEST_DATA_DIR "/rcgen/data/resource.version");
  tests::checkFile(TEST_DATA_DIR "/rcgen/data/resource.stamped",
                   stampVersion(source, build_number));
  CHECK(build_number == 44);
}

TEST_CASE("lines and numbers of a version resource") {
  using namespace std::string_literals;
  struct Row {
    std::string text;
    std::string stamped;
    std::int32_t build_number;
    std::int32_t next;
  };
  const std::string x(254, 'x');
  const Row rows[] = {
      {"", "", 7, 7},
      {"no line end", "no line end\n", 7, 7},
      {"tab\t\n\t\nlone\r", "tab\t\n\t\nlone\n", 7, 7},
      {"a\0b\nc\n"s, "a\nc\n", 7, 7},
      {x + x + "y\n", x + "\n" + x + "\ny\n", 7, 7},
      {x + "FILEVERSION 1,2,3,4", x + "\nFILEVERSION 1, 2, 3, 7\n", 7, 7},
      {"FILEVERSION ", "FILEVERSION 1, 0, 0, 8\n", 7, 8},
      {"FILEVERSION 1,2,3,2147483647", "FILEVERSION 1, 2, 3, -2147483648\n", 7,
       std::numeric_limits<std::int32_t>::min()},
      {"FILEVERSION 1,2,3,-5", "FILEVERSION 1, 2, 3, -4\n", -6, -4},
      {"FILEVERSION 1,2,3,6", "FILEVERSION 1, 2, 3, 7\n", 6, 7},
      {"FILEVERSION \t3,\t4, \t5,\t6", "FILEVERSION 3, 4, 5, 7\n", 6, 7},
      {"FILEVERSION -,2,3,6", "FILEVERSION 1, 0, 0, 7\n", 6, 7},
      {"FILEVERSION 3,-x", "FILEVERSION 3, 0, 0, 7\n", 6, 7},
  };
  for (const Row& row : rows) {
    CAPTURE(row.text);
    std::int32_t build_number = row.build_number;
    CHECK(stampVersion(row.text, build_number) == row.stamped);
    CHECK(build_number == row.next);
  }
}

TEST_CASE("the version files of a tree") {
  PlayedFiles files;
  std::int32_t build_number = 0;
  files.directories["P"] = {".", "..", "a", "b"};
  files.directories["P\\a"] = {".", "..", "c"};
  files.links["P\\a"] = {"link"};
  files.put("P\\VERSION.RC", "FILEVERSION 1,0,0,41\n");
  files.put("P\\a\\VERSION.RC", "FILEVERSION 1,0,0,2\n");
  files.put("P\\a\\c\\VERSION.RC", "FILEVERSION 1,0,0,5\n");

  CHECK(ran(files, kVersions, build_number) ==
        "list P\nlist P\\a\nlist P\\a\\c\nrename P\\a\\c\\VERSION.RC\nread P\\a\\c\\VERSION.BAK\n"
        "write P\\a\\c\\VERSION.RC\nrename P\\a\\VERSION.RC\nread P\\a\\VERSION.BAK\n"
        "write P\\a\\VERSION.RC\nlist P\\b\nrename P\\VERSION.RC\nread P\\VERSION.BAK\n"
        "write P\\VERSION.RC\n");
  CHECK(files.files["P\\a\\c\\VERSION.RC"].text == "FILEVERSION 1, 0, 0, 6\n");
  CHECK(files.files["P\\a\\VERSION.RC"].text == "FILEVERSION 1, 0, 0, 6\n");
  CHECK(files.files["P\\VERSION.RC"].text == "FILEVERSION 1, 0, 0, 42\n");

  // The first text stays the source: what was edited since is lost.
  files.put("P\\a\\VERSION.RC", "FILEVERSION 9,9,9,99\n");
  ran(files, kVersions, build_number);
  CHECK(build_number == 43);
  CHECK(files.files["P\\a\\VERSION.RC"].text == "FILEVERSION 1, 0, 0, 43\n");
  CHECK(files.files["P\\VERSION.RC"].text == "FILEVERSION 1, 0, 0, 43\n");
  CHECK(files.files["P\\VERSION.BAK"].text == "FILEVERSION 1,0,0,41\n");

  // A file that cannot be written has no say.
  files.locked = true;
  files.put("P\\a\\c\\VERSION.BAK", "FILEVERSION 1,0,0,1000\n");
  ran(files, kVersions, build_number);
  CHECK(build_number == 44);

  // Neither has a directory of that name.
  files.locked = false;
  files.directories["P\\a\\c\\VERSION.RC"] = {};
  CHECK(ran(files, kVersions, build_number).find("c\\VERSION.BAK") == std::string::npos);
  CHECK(build_number == 45);

  // Who ends it leaves the directories that it came through as they are.
  class : public WalkWatch {
    bool goOn(int directories, int /*files*/) override { return directories < 3; }
  } watch;
  files.takeDone();
  runGenerator(files, "P", kVersions, build_number, &watch);
  CHECK(files.takeDone() == "list P\nlist P\\a\n");
}

TEST_CASE("directories without end") {
  PlayedFiles files;
  files.endless = true;
  std::int32_t build_number = std::numeric_limits<std::int32_t>::max();
  const std::string done = ran(files, kVersions, build_number);
  CHECK(std::count(done.begin(), done.end(), '\n') == kDirectoryLimit);
  CHECK(build_number == std::numeric_limits<std::int32_t>::min());
}

}  // namespace kesto
