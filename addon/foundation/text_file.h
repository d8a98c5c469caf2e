// Text files as the run-time library's text mode shows them, in every build: a
// carriage return before a line feed is dropped, and Ctrl-Z ends the text.
// Holds nothing; any thread.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kesto {

// Bytes of a file that is read at most: a 32-bit process holds no two of them.
inline constexpr long kTextFileLimit = 256L * 1024 * 1024;

// Ends a text in text mode.
inline constexpr char kEndOfText = '\x1A';

// Replaces bytes by the file's, as they are. False, and bytes empty, when it cannot be
// opened, is a directory or is longer than the limit.
bool readFileBytes(const char* path, std::string& bytes);
// The same in text mode. False and text empty, for the same reasons.
bool readTextFile(const char* path, std::string& text);
// Whether the text begins with the mark of UTF-16, of either byte order.
bool isUtf16(std::string_view text);
// What a file of these bytes holds as text.
void takeTextMode(std::string& bytes);
// Drops the carriage returns before line feeds, and nothing else.
void takeLineFeeds(std::string& bytes);
// The bytes that text mode writes for the text on Windows: CR LF for each line feed.
std::string withCarriageReturns(std::string_view text);
// Creates or overwrites the file; line feeds become the system's line ends. False when
// the file cannot be created or written whole.
bool writeTextFile(const char* path, std::string_view text);
// Whether the file is, byte for byte, what writeTextFile would leave.
bool holdsText(const char* path, std::string_view text);
// The same, but goes on after what the file holds.
bool appendTextFile(const char* path, std::string_view text);

// The lines of a text, read through a buffer of limit bytes: at most limit - 1
// characters at a time, the line feed among them; the next read goes on in a longer
// line. A zero byte hides what follows it in its piece. The text must outlive it.
class TextLines {
 public:
  TextLines(std::string_view text, std::size_t limit)
      : rest_(text), most_(limit - 1), holds_zeros_(text.find('\0') != std::string_view::npos) {}

  // The next piece with its line feed, if it has one; false at the text's end.
  bool next(std::string_view& line);

 private:
  std::string_view rest_;
  std::size_t most_;
  bool holds_zeros_;
};

// Codes below 32; letters beyond 127 are none.
constexpr bool isControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

// The line without its last character when that is a control character.
constexpr std::string_view withoutLineEnd(std::string_view line) {
  return !line.empty() && isControl(line.back()) ? line.substr(0, line.size() - 1) : line;
}

}  // namespace kesto
