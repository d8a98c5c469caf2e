// What a build command writes: its bytes as lines, and the places that compilers
// name in them. Plain values, any thread.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

// Cuts bytes that come in pieces into lines.
class LineSplitter {
 public:
  // A longer line comes in parts of this length, in bytes.
  static constexpr std::size_t kLongestLine = 4000;

  // Appends the lines that the bytes complete, without their ends.
  void add(std::string_view bytes, std::vector<std::string>* lines);
  // What is left after the last end.
  void finish(std::vector<std::string>* lines);

 private:
  std::string rest_;
  bool after_return_ = false;
};

struct OutputLine {
  std::string text;  // without the place
  std::string file;  // as written; empty without a place
  int line = 0;      // 1-based
  int column = 0;    // 1-based, 0 when none is named
  int kind = 0;      // a MessageKind
};

// Knows "FILE:LINE:COLUMN: TEXT", "FILE:LINE: TEXT", "FILE(LINE,COLUMN): TEXT",
// "FILE(LINE): TEXT" and "Error E2268 FILE LINE: TEXT" (with or without the code);
// where a linker speaks, "(.SECTION+OFFSET)" may stand for the LINE and objects before the
// FILE; any other line is its own text, and an error when a driver, linker or make says so.
OutputLine parseOutputLine(const std::string& line);

// The program that a command starts with, as it stands there, without its quotes.
std::string programOf(std::string_view command);

// Whether the command needs the command interpreter: for its own commands, for
// batch files and for anything joined or redirected.
bool needsInterpreter(std::string_view command);

}  // namespace workbench
