#include "workbench/make/output_line.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "workbench/messages/message_store.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

// Reads a number from 1 at the start of the text and takes it away.
bool takeNumber(std::string_view* text, int* number) {
  int value = 0;
  const auto [stop, fault] = std::from_chars(text->data(), text->data() + text->size(), value);
  if (fault != std::errc() || value < 1) {
    return false;
  }
  text->remove_prefix(static_cast<std::size_t>(stop - text->data()));
  *number = value;
  return true;
}

bool takeText(std::string_view* text, std::string_view start) {
  if (!text->starts_with(start)) {
    return false;
  }
  text->remove_prefix(start.size());
  return true;
}

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// Times of day and the like have no extension.
bool isFileName(std::string_view name) {
  return extensionOf(name).size() > 1 &&
         name.find_first_of("\"<>|*?\t") == std::string_view::npos &&
         name.find(": ") == std::string_view::npos;
}

int kindOf(std::string_view text) {
  const std::string folded = foldCase(text.substr(0, 16));
  // The last two are a linker's.
  for (const char* start : {"error", "fatal", "undefined refere", "multiple definit"}) {
    if (folded.starts_with(start)) {
      return kMessageError;
    }
  }
  return folded.starts_with("warning") ? kMessageWarning : kMessageInformation;
}

bool isLinker(std::string_view program) {
  const std::string name = foldCase(fileName(program));
  return name == "ld" || name.ends_with("-ld") || name.ends_with("ld.exe") ||
         name.starts_with("ld.");
}

// Of a line without a place, which may start with "PROGRAM: ".
int kindOfPlain(std::string_view line) {
  const std::size_t colon = line.find(": ");
  const std::string_view program = withoutBlanks(line.substr(0, colon));
  if (colon == std::string_view::npos || kindOf(line) != kMessageInformation) {
    return kindOf(line);
  }
  const std::string_view told = withoutBlanks(line.substr(colon + 1));
  if (program.substr(0, program.find_last_not_of(' ') + 1).find(' ') == std::string_view::npos &&
      kindOf(told) != kMessageInformation) {
    return kindOf(told);
  }
  const bool link_error =
      isLinker(program) && (told.starts_with("cannot find") ||
                            told.find(": undefined reference to") != std::string_view::npos);
  const bool make_error =
      program.find("make") != std::string_view::npos && told.starts_with("*** ");
  return link_error || make_error ? kMessageError : kMessageInformation;
}

// A linker names itself and the object file before the source.
std::string_view withoutObjects(std::string_view line) {
  const std::size_t colon = line.find(": ");
  if (colon != std::string_view::npos && isLinker(line.substr(0, colon))) {
    line = withoutBlanks(line.substr(colon + 1));
  }
  for (const std::string_view end : {".o:", ".obj:", ".o):", ".obj):"}) {
    const std::size_t at = line.find(end);
    const std::size_t next = at + end.size();
    if (at != std::string_view::npos && next < line.size() && line[next] != ' ' &&
        line.find(' ') > at) {
      return line.substr(next);
    }
  }
  return line;
}

// "(.SECTION+OFFSET): " in place of a line's number
bool takeSection(std::string_view* text) {
  const std::size_t end = text->find("):");
  if (!text->starts_with("(.") || end == std::string_view::npos) {
    return false;
  }
  text->remove_prefix(end + 2);
  return true;
}

// What follows the file's name in either form, up to the text.
bool readPlace(std::string_view rest, OutputLine* result) {
  if (takeText(&rest, ":")) {
    if (takeSection(&rest)) {
      result->line = 0;
      result->text = withoutBlanks(rest);
      result->kind = kindOf(result->text);
      return true;
    }
    if (!takeNumber(&rest, &result->line) || !takeText(&rest, ":")) {
      return false;
    }
    std::string_view further = rest;
    if (takeNumber(&further, &result->column) && takeText(&further, ":")) {
      rest = further;
    } else {
      result->column = 0;
    }
  } else {
    if (!takeText(&rest, "(") || !takeNumber(&rest, &result->line)) {
      return false;
    }
    if (takeText(&rest, ",") && !takeNumber(&rest, &result->column)) {
      return false;
    }
    if (!takeText(&rest, ")")) {
      return false;
    }
    rest = withoutBlanks(rest);
    if (!takeText(&rest, ":")) {
      return false;
    }
  }
  result->text = withoutBlanks(rest);
  result->kind = kindOf(result->text);
  return true;
}

bool parseNameFirst(std::string_view line, OutputLine* result) {
  // The second character may be a drive's colon.
  for (std::size_t at = line.find_first_of(":(", 2); at != std::string_view::npos;
       at = line.find_first_of(":(", at + 1)) {
    const std::string_view name = withoutBlanks(line.substr(0, at));
    if (isFileName(name) && readPlace(line.substr(at), result)) {
      result->file = name;
      return true;
    }
  }
  return false;
}

bool isCode(std::string_view word) {
  return word.size() > 1 && word[0] >= 'A' && word[0] <= 'Z' &&
         word.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

// "Error FILE LINE: TEXT"
bool parseKindFirst(const std::string& line, OutputLine* result) {
  std::string_view rest = line;
  const int kind = kindOf(rest);
  const std::size_t word = rest.find(' ');
  if (kind == kMessageInformation || word == std::string_view::npos) {
    return false;
  }
  rest = withoutBlanks(rest.substr(word));
  const std::size_t next = rest.find(' ');
  if (next != std::string_view::npos && isCode(rest.substr(0, next))) {
    rest = withoutBlanks(rest.substr(next));
  }
  for (std::size_t at = rest.find(' '); at != std::string_view::npos; at = rest.find(' ', at + 1)) {
    std::string_view after = rest.substr(at + 1);
    if (isFileName(rest.substr(0, at)) && takeNumber(&after, &result->line) &&
        takeText(&after, ":")) {
      result->file = rest.substr(0, at);
      result->text = withoutBlanks(after);
      result->kind = kind;
      return true;
    }
  }
  return false;
}

}  // namespace

void LineSplitter::add(std::string_view bytes, std::vector<std::string>* lines) {
  for (const char c : bytes) {
    const bool second_half = c == '\n' && after_return_;
    after_return_ = c == '\r';
    if (second_half) {
      continue;
    }
    if (c == '\r' || c == '\n') {
      lines->push_back(std::move(rest_));
      rest_.clear();
    } else {
      rest_ += c;
      if (rest_.size() >= kLongestLine) {
        lines->push_back(std::move(rest_));
        rest_.clear();
      }
    }
  }
}

void LineSplitter::finish(std::vector<std::string>* lines) {
  if (!rest_.empty()) {
    lines->push_back(std::move(rest_));
    rest_.clear();
  }
}

OutputLine parseOutputLine(const std::string& line) {
  OutputLine result;
  std::string_view including = withoutBlanks(line);
  if (takeText(&including, "In file included from ") || takeText(&including, "from ")) {
    if (parseNameFirst(including, &result) && result.text.empty()) {
      result.text = "included from here";
      return result;
    }
  } else if (parseNameFirst(withoutObjects(line), &result) || parseKindFirst(line, &result)) {
    return result;
  }
  OutputLine plain;
  plain.text = line;
  plain.kind = kindOfPlain(line);
  return plain;
}

std::string programOf(std::string_view command) {
  const std::string_view start = withoutBlanks(command);
  const bool quoted = start.starts_with('"');
  const std::size_t end = quoted ? start.find('"', 1) : start.find_first_of(" \t");
  return std::string(start.substr(quoted ? 1 : 0, end - (quoted ? 1 : 0)));
}

bool needsInterpreter(std::string_view command) {
  static constexpr std::string_view kOwn[] = {
      "assoc",  "break", "call",  "cd",    "chdir", "cls",   "copy", "date",   "del",
      "dir",    "echo",  "erase", "exit",  "for",   "ftype", "if",   "md",     "mkdir",
      "mklink", "move",  "path",  "pause", "rd",    "rem",   "ren",  "rename", "rmdir",
      "set",    "start", "time",  "type",  "ver",   "vol",
  };
  if (command.find_first_of("&|<>%^") != std::string_view::npos) {
    return true;
  }
  const std::string word = foldCase(programOf(command));
  const std::string type = std::string(extensionOf(word));
  return type == ".bat" || type == ".cmd" ||
         std::find(std::begin(kOwn), std::end(kOwn), word) != std::end(kOwn);
}

}  // namespace workbench
