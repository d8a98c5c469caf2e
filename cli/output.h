// What a command writes on standard output: rows of text, or one JSON object a line. A
// reader that has seen enough ends nothing: what is written after that goes nowhere.
// Complaints go to standard error, each once. One user.
#pragma once

#include <cstdio>
#include <set>
#include <string>
#include <string_view>

namespace kesto::cli {

struct OutputStyle {
  bool json = false;
  bool colour = false;
  bool at_once = false;  // a person looks on
  bool utf8 = true;      // names and texts that are shown, else Windows-1252
};

class Complaints;
class Row;

class Output {
 public:
  // The complaints must outlive it: they may share its terminal.
  Output(FILE* stream, Complaints& complaints) : stream_(stream), complaints_(complaints) {}
  void setStyle(const OutputStyle& style) { style_ = style; }

  bool json() const { return style_.json; }
  // False once nobody reads, or no more can be written.
  bool open() const { return fault_ == 0; }

  void add(const Row& row);
  // A line of text, as it is shown.
  void line(std::string_view shown);
  // A line that editors can jump by; the file as it is shown.
  void located(std::string_view file, int line, std::string_view text);
  // A text of a source or a record as it is shown.
  std::string shown(std::string_view text) const;
  // Writes what is left. The system's number of what failed, or 0; a reader that went away
  // is no failure.
  int finish();

 private:
  void put(std::string_view bytes);

  FILE* stream_;
  Complaints& complaints_;
  OutputStyle style_;
  std::string buffer_;
  int fault_ = 0;
};

// A row of JSON; its fields stand in the order in which they come.
class Row {
 public:
  // A name, or a text of a source or a record.
  Row& text(std::string_view key, std::string_view text);
  Row& number(std::string_view key, long value);
  Row& flag(std::string_view key, bool value);
  const std::string& json() const { return json_; }

 private:
  std::string& begin(std::string_view key);
  std::string json_;
};

class Complaints {
 public:
  // "kesto-cli: FILE: REASON"; without a file the reason alone.
  void tell(std::string_view file, std::string_view reason);
  // What a person should know, and is no failure.
  void note(std::string_view file, std::string_view text);
  bool any() const { return any_; }

  // For a terminal: a line that stands there until something else is written.
  void showProgress(const std::string& text);
  void clearProgress();

 private:
  void print(std::string_view file, std::string_view text);

  std::set<std::string> told_;
  bool any_ = false;
  bool in_progress_ = false;
};

}  // namespace kesto::cli
