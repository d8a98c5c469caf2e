// The lines of random texts, by both searches and by a reader of single bytes.
#include "addon/navigation/line_ends.h"

#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "doctest.h"

namespace kesto {

namespace {

using NumberedLines = std::vector<std::pair<int, std::string>>;

NumberedLines readPlainly(const std::string& text) {
  NumberedLines lines;
  std::string line;
  int number = 1;
  for (std::size_t i = 0; i <= text.size(); ++i) {
    const char c = i < text.size() ? text[i] : '\0';
    if (c != '\r' && c != '\n' && c != '\0') {
      line += c;
      continue;
    }
    if (!line.empty() && line[0] > ' ') {
      lines.emplace_back(number, line);
    }
    if (c == '\0') {
      break;
    }
    line.clear();
    ++number;
    i += c == '\r' && i + 1 < text.size() && text[i + 1] == '\n' ? 1 : 0;
  }
  return lines;
}

template <class Search>
NumberedLines readInBlocks(const std::string& text) {
  // The memory ends where the text does.
  const auto exact = std::make_unique<char[]>(text.size());
  memcpy(exact.get(), text.data(), text.size());
  NumberedLines found;
  FlushLeftLines<Search> lines({exact.get(), text.size()});
  std::string_view line;
  while (lines.next(line)) {
    found.emplace_back(lines.number(), line);
  }
  return found;
}

}  // namespace

TEST_CASE("every search finds the same lines, whatever the text") {
  std::mt19937 random(1);
  const std::string alphabets[] = {
      std::string("ab \t\r\n\v\f\x0E\x80\xFF!\x7F"),
      std::string("xxxxxxxxxxxxxxxxxxxxxxxxxxxxx\r\n"),
      std::string("x\r\n"),
      std::string("xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx \x01\x0D\x0C\x00\x0A", 39),
  };
  for (int round = 0; round < 4000; ++round) {
    const std::string& alphabet = alphabets[round % std::size(alphabets)];
    std::string text(random() % 400, ' ');
    for (char& c : text) {
      c = alphabet[random() % alphabet.size()];
    }
    CAPTURE(text);
    const NumberedLines wanted = readPlainly(text);
    CHECK(readInBlocks<WordSearch>(text) == wanted);
    CHECK(readInBlocks<LineSearch>(text) == wanted);
  }
}

}  // namespace kesto
