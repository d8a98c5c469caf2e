// The run at a make's start, and the stamping of versions. data/resource.version stamped
// with build number 1 must be data/resource.stamped.
#include "addon/rcgen/generator_run.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <utility>
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
  runGenerator(files.host(), "P", switches, build_number);
  return files.takeDone();
}

std::string stamped(const std::string& directory) {
  const std::string file = directory + "VERSION.RC\n";
  return "read " + file + "rename " + file + "put " + file;
}

std::string written(const std::string& stem) {
  return "put " + stem + ".h\nput " + stem + ".cpp\n";
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
  files.sources["P"] = {"a.rc"};
  files.put("P\\a.rc", script);
  std::int32_t build_number = 0;
  const std::string done = ran(files, kClasses, build_number);
  const std::string piece = "append P\\.rc.h.kesto-new\nappend P\\.rc.cpp.kesto-new\n";
  CHECK(done.starts_with("list P\nread P\\a.rc\n" + piece));
  CHECK(done.ends_with(piece + written("P\\rc")));
  const std::string& header = files.files["P\\rc.h"].text;
  const std::string& implementation = files.files["P\\rc.cpp"].text;
  CHECK(count(header, "class rcD : public Dialog\n") == 60);
  CHECK(header.ends_with("} ;\n\n#endif\n"));
  CHECK(count(implementation, "    case 1 : return(mnuITEM()) ;\n") == 60 * 255);
  CHECK(implementation.ends_with("}\n\n\nRCRCMAIN\n\n"));

  // What could not be created is not gone on with.
  files.files.clear();
  files.put("P\\a.rc", script);
  files.locked = "P\\.rc";
  CHECK(ran(files, kClasses, build_number) == "list P\nread P\\a.rc\n");
  CHECK(files.notices == "The classes in P could not be written\n");
}

TEST_CASE("units are made in order, each when something of its own changed") {
  PlayedFiles files;
  std::int32_t build_number = 0;
  files.folders["P"] = {".", "..", "src", "res"};
  files.links["P"] = {"link"};
  files.folders["P\\src"] = {"deeper"};
  files.sources["P"] = {"a.rc", ".b.rc"};
  files.sources["P\\res"] = {"c.rc", "d.rc"};
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
  files.folders["P"] = {".", "..", "a", "b"};
  files.folders["P\\a"] = {".", "..", "c"};
  files.links["P\\a"] = {"link"};
  files.put("P\\VERSION.RC", "FILEVERSION 1,0,0,41\n");
  files.put("P\\a\\VERSION.RC", "FILEVERSION 1,0,0,2\n");
  files.put("P\\a\\c\\VERSION.RC", "FILEVERSION 1,0,0,5\n");

  CHECK(ran(files, kVersions, build_number) == "list P\nlist P\\a\nlist P\\a\\c\n" +
                                                   stamped("P\\a\\c\\") + stamped("P\\a\\") +
                                                   "list P\\b\n" + stamped("P\\"));
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
  files.locked = "VERSION.RC";
  files.put("P\\a\\c\\VERSION.BAK", "FILEVERSION 1,0,0,1000\n");
  ran(files, kVersions, build_number);
  CHECK(build_number == 44);

  // Neither has a directory of that name.
  files.locked.clear();
  files.directories.insert("P\\a\\c\\VERSION.RC");
  CHECK(ran(files, kVersions, build_number).find("c\\VERSION.BAK") == std::string::npos);
  CHECK(build_number == 45);

  // Who ends it leaves the directories that it came through as they are.
  class : public WalkWatch {
    bool goOn(int directories, int /*files*/) override { return directories < 3; }
  } watch;
  files.takeDone();
  runGenerator(files.host(), "P", kVersions, build_number, &watch);
  CHECK(files.takeDone() == "list P\nlist P\\a\n");
}

TEST_CASE("a text that a backup from elsewhere replaces is kept once") {
  PlayedFiles files;
  std::int32_t build_number = 0;
  const auto made = [&](const char* text, const char* backup) {
    files.put("P\\VERSION.RC", text);
    files.put("P\\VERSION.BAK", backup);
    files.notices.clear();
    ran(files, kVersions, build_number);
    return files.files["P\\VERSION.RC"].text;
  };
  // Nothing of a version goes lost.
  CHECK(made("other\n", "") == "");
  CHECK(made("FILEVERSION 1,0,0,5\n", "FILEVERSION \n") == "FILEVERSION 1, 0, 0, 3\n");
  CHECK(files.files.count("P\\VERSION.OLD") == 0);
  CHECK(files.notices.empty());

  CHECK(made("mine\nFILEVERSION 1,0,0,5\n", "FILEVERSION\n") == "FILEVERSION\n");
  CHECK(files.files["P\\VERSION.OLD"].text == "mine\nFILEVERSION 1,0,0,5\n");
  CHECK(files.notices ==
        "P\\VERSION.RC is made of a VERSION.BAK without a FILEVERSION line; "
        "VERSION.OLD keeps what it held\n");
  CHECK(made("later\nFILEVERSION 1,0,0,5\n", "theirs") == "theirs\n");
  CHECK(files.files["P\\VERSION.OLD"].text == "mine\nFILEVERSION 1,0,0,5\n");
  CHECK(files.notices ==
        "P\\VERSION.RC is made of a VERSION.BAK without a FILEVERSION line; "
        "VERSION.OLD keeps an earlier text\n");
}

namespace {

using Texts = std::map<std::string, std::string>;

// A project before a make: its files in the order of their times.
PlayedFiles project(const std::vector<std::pair<std::string, std::string>>& before) {
  PlayedFiles files;
  files.sources["P"] = {"a.rc"};
  for (const auto& [name, text] : before) {
    ++files.now;
    files.put("P\\" + name, text);
  }
  ++files.now;
  return files;
}

void make(PlayedFiles& files, GeneratorSwitches switches) {
  std::int32_t build_number = 0;
  runGenerator(files.host(), "P", switches, build_number);
}

Texts withoutBeside(Texts texts) {
  std::erase_if(texts, [](const auto& file) {
    return file.first.starts_with("P\\.") && file.first.find(".kesto-") != std::string::npos;
  });
  return texts;
}

// Whether each file has its old text or its new one. A version may be on its way from one
// to the other, with the old one in its backup.
bool isWhole(const Texts& before, const Texts& after, const Texts& texts) {
  const auto holds = [](const Texts& all, const std::string& path, const std::string& text) {
    return all.count(path) != 0 && all.at(path) == text;
  };
  const bool known = std::all_of(texts.begin(), texts.end(), [&](const auto& file) {
    return holds(before, file.first, file.second) || holds(after, file.first, file.second);
  });
  return known && std::all_of(before.begin(), before.end(), [&](const auto& file) {
           return texts.count(file.first) != 0 || holds(texts, "P\\VERSION.BAK", file.second);
         });
}

}  // namespace

TEST_CASE("a step that fails leaves every file as it was, and an ended process a whole one") {
  const std::string script = "A DIALOG 1\n}\n";
  const std::string version = "FILEVERSION 1,2,0,41\n";
  const std::vector<std::pair<std::string, std::string>> projects[] = {
      {{"rc.h", "H"}, {"rc.cpp", "C"}, {"a.rc", script}},
      {{"rc.cpp", "C"}, {"rc.h", "H"}, {"a.rc", script}},
      {{"rc.h", "H"}, {"a.rc", script}, {"rc.cpp", "C"}},
      {{"rc.cpp", "C"}, {"a.rc", script}, {"rc.h", "H"}},
      {{"a.rc", script}, {"rc.h", "H"}},
      {{"a.rc", script}, {"rc.cpp", "C"}},
      {{"a.rc", script}},
      {{"VERSION.RC", version}},
      {{"VERSION.BAK", version}, {"VERSION.RC", "other"}},
      {{"VERSION.BAK", "theirs"}, {"VERSION.RC", version}},
  };
  for (const auto& row : projects) {
    PlayedFiles files = project(row);
    const Texts before = files.texts();
    const bool classes = before.count("P\\a.rc") != 0;
    const GeneratorSwitches switches = classes ? kClasses : kVersions;
    const PlayedFiles start = files;
    make(files, switches);
    const Texts after = files.texts();
    CHECK((classes ? after.at("P\\rc.h") != "H" && after.at("P\\rc.cpp") != "C"
                   : after.at("P\\VERSION.RC") != before.at("P\\VERSION.RC")));
    const int steps = files.changes;
    CHECK(steps >= 3);
    for (int failing = 1; failing <= steps; ++failing) {
      CAPTURE(row.front().first);
      CAPTURE(failing);
      files = start;
      files.failing = failing;
      make(files, switches);
      const Texts texts = files.texts();
      CHECK((texts == before || texts == after));
      CHECK((classes || texts == after || files.notices.empty()));

      files = start;
      files.failing = failing;
      files.ends = true;
      make(files, switches);
      CHECK(isWhole(before, after, withoutBeside(files.texts())));
      // The next make finishes it; what is still beside goes with the next that has work.
      files.failing = 0;
      make(files, switches);
      CHECK(withoutBeside(files.texts()) == after);
      if (classes) {
        ++files.now;
        files.put("P\\a.rc", script);
        ++files.now;
        make(files, switches);
      }
      CHECK(files.texts() == after);
    }
  }
}

}  // namespace kesto
