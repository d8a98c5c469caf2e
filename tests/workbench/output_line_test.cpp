#include "workbench/make/output_line.h"

#include <string>
#include <vector>

#include "doctest.h"
#include "workbench/messages/message_store.h"

using namespace workbench;

TEST_CASE("places in a compiler's output") {
  const struct {
    const char* line;
    const char* file;
    int number;
    int column;
    int kind;
    const char* text;
  } cases[] = {
      {"a.cpp:12:7: error: no", "a.cpp", 12, 7, kMessageError, "error: no"},
      {"C:\\p\\a.cpp:12: warning: odd", "C:\\p\\a.cpp", 12, 0, kMessageWarning, "warning: odd"},
      {"src/my file.h:3: note: here", "src/my file.h", 3, 0, kMessageInformation, "note: here"},
      {"D:\\a.c(4): error C2065: x", "D:\\a.c", 4, 0, kMessageError, "error C2065: x"},
      {"a (1)\\b.c(4,9) : warning: y", "a (1)\\b.c", 4, 9, kMessageWarning, "warning: y"},
      {"Error E2451 a.cpp 8: Undefined symbol", "a.cpp", 8, 0, kMessageError, "Undefined symbol"},
      {"Warning my dir\\a.cpp 8: unused", "my dir\\a.cpp", 8, 0, kMessageWarning, "unused"},
      {"Fatal F1003 a.h 2: gone", "a.h", 2, 0, kMessageError, "gone"},
      {"a.cpp:12: undefined reference to `f()'", "a.cpp", 12, 0, kMessageError,
       "undefined reference to `f()'"},
      {"/tmp/x.o:a.cpp:(.text+0x11): undefined reference to `f()'", "a.cpp", 0, 0, kMessageError,
       "undefined reference to `f()'"},
      {"a.cpp:(.text$_Z1f+0x1a): undefined reference to `g'", "a.cpp", 0, 0, kMessageError,
       "undefined reference to `g'"},
      {"/usr/bin/ld: a.o:a.cpp:12: multiple definition of `f()'; b.o:b.cpp:3: first defined here",
       "a.cpp", 12, 0, kMessageError,
       "multiple definition of `f()'; b.o:b.cpp:3: first defined here"},
      {"/usr/bin/ld: lib.a(b.o):b.cpp:3: undefined reference to `f()'", "b.cpp", 3, 0,
       kMessageError, "undefined reference to `f()'"},
      {"In file included from a.h:3:", "a.h", 3, 0, kMessageInformation, "included from here"},
      {"                 from b.cpp:1:", "b.cpp", 1, 0, kMessageInformation, "included from here"},
      {"a.cpp:12:x", "a.cpp", 12, 0, kMessageInformation, "x"},
  };
  for (const auto& each : cases) {
    CAPTURE(each.line);
    const OutputLine line = parseOutputLine(each.line);
    CHECK(line.file == each.file);
    CHECK(line.line == each.number);
    CHECK(line.column == each.column);
    CHECK(line.kind == each.kind);
    CHECK(line.text == each.text);
  }
}

TEST_CASE("lines of an output that tell no place") {
  const struct {
    const char* line;
    int kind;
  } cases[] = {
      {"/usr/bin/ld: a.o: undefined reference to symbol 'x'", kMessageError},
      {"make: *** [all] Error 2", kMessageError},
      {"mingw32-make.exe[2]: *** [Makefile:9: a.o] Error 1", kMessageError},
      {"make: *** No rule to make target 'x'.  Stop.", kMessageError},
      {"make: [Makefile:3: clean] Error 1 (ignored)", kMessageInformation},
      {"ld: cannot find -lfoo", kMessageError},
      {"/usr/bin/i686-w64-mingw32-ld: cannot find -lfoo: No such file", kMessageError},
      {"/usr/bin/ld: warning: x.o: missing section", kMessageWarning},
      {"collect2: error: ld returned 1 exit status", kMessageError},
      {"collect2.exe: error: ld returned 1 exit status", kMessageError},
      {"g++: error: x.cpp: No such file or directory", kMessageError},
      {"g++: fatal error: no input files", kMessageError},
      {"cc1plus: warning: no option -Wx", kMessageWarning},
      {"LINK : fatal error LNK1181: cannot open a.lib", kMessageError},
      {"echo: the error: none", kMessageInformation},
      {"ld: a.o: in function `main':", kMessageInformation},
      {"12:30:15: started", kMessageInformation},
      {"a.cpp:0: zero", kMessageInformation},
      {"a.cpp:99999999999: far", kMessageInformation},
      {"a.cpp(12", kMessageInformation},
      {"error: no input files", kMessageError},
      {"Warning", kMessageWarning},
      {"C:", kMessageInformation},
      {"", kMessageInformation},
  };
  for (const auto& each : cases) {
    CAPTURE(each.line);
    const OutputLine line = parseOutputLine(each.line);
    CHECK(line.file.empty());
    CHECK(line.line + line.column == 0);
    CHECK(line.kind == each.kind);
    CHECK(line.text == each.line);
  }
}

TEST_CASE("lines are the same however their bytes arrive") {
  const std::string bytes = "one\r\ntwo\n\nthree\rfour\r\n\r\nlast";
  const std::vector<std::string> expected = {"one", "two", "", "three", "four", "", "last"};
  for (std::size_t piece = 1; piece <= bytes.size(); ++piece) {
    LineSplitter splitter;
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      splitter.add(std::string_view(bytes).substr(at, piece), &lines);
    }
    splitter.finish(&lines);
    splitter.finish(&lines);
    CHECK(lines == expected);
  }
  LineSplitter splitter;
  std::vector<std::string> parts;
  splitter.add(std::string(2 * LineSplitter::kLongestLine + 1, 'x'), &parts);
  splitter.finish(&parts);
  CHECK(parts.size() == 3);
}

TEST_CASE("commands for the interpreter") {
  for (const char* command : {"echo hello", "ECHO", "a.exe > b", "one&two", "build.bat all",
                              "\"C:\\my tools\\build.CMD\" x", "type \"a\"", "%TOOL% x"}) {
    CAPTURE(command);
    CHECK(needsInterpreter(command));
  }
  for (const char* command : {"make all", "echoes x", "\"C:\\my tools\\set.exe\" x", "bat", ""}) {
    CAPTURE(command);
    CHECK_FALSE(needsInterpreter(command));
  }
}

TEST_CASE("messages stand below their parents") {
  MessageStore store;
  const auto add = [&store](unsigned int group, unsigned int parent, const char* text) {
    Message message;
    message.parent = parent;
    message.text = text;
    return store.add(group, message);
  };
  const unsigned int build = MessageStore::kBuildGroup;
  const unsigned int other = store.createGroup("Other", "&Other");
  REQUIRE(store.group(other) != nullptr);
  const unsigned int first = add(build, 0, "1");
  add(build, 0, "2");
  const unsigned int inner = add(build, first, "1.1");
  const unsigned int last = add(build, first, "1.2");
  add(build, inner, "1.1.1");
  add(build, last, "1.2.1");
  add(other, first, "not its group");
  add(build, 4711, "no such parent");
  CHECK(add(77, 0, "no such group") == 0);
  CHECK(add(0, 0, "no group") == 0);
  std::string shown;
  for (const Message& message : store.group(build)->messages) {
    shown += std::string(static_cast<std::size_t>(message.depth), ' ') + message.text + "|";
  }
  CHECK(shown == "1| 1.1|  1.1.1| 1.2|  1.2.1|2|no such parent|");
  CHECK(store.group(other)->messages[0].depth == 0);

  store.clear(build);
  CHECK(store.group(build)->messages.empty());
  CHECK(add(build, inner, "its parent is gone") != 0);
  CHECK(store.group(build)->messages[0].depth == 0);
  CHECK(store.group(other)->messages.size() == 1);
}
