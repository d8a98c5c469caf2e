#include "workbench/project/project_words.h"

#include <charconv>

namespace workbench {
namespace {

constexpr char kBlanks[] = " \t";

// Reads the escape after the backslash; false when it is none.
bool readEscape(std::string_view* rest, std::string* text) {
  if (rest->empty()) {
    return false;
  }
  const char letter = rest->front();
  rest->remove_prefix(1);
  switch (letter) {
    case '\\':
    case '"':
      *text += letter;
      return true;
    case 'n':
      *text += '\n';
      return true;
    case 'r':
      *text += '\r';
      return true;
    case 't':
      *text += '\t';
      return true;
    case 'x': {
      unsigned int value = 0;
      if (rest->size() < 2) {
        return false;
      }
      const auto [stop, bad] = std::from_chars(rest->data(), rest->data() + 2, value, 16);
      if (bad != std::errc() || stop != rest->data() + 2) {
        return false;
      }
      rest->remove_prefix(2);
      *text += static_cast<char>(value);
      return true;
    }
    default:
      return false;
  }
}

// Reads up to the closing quote, the opening one being gone.
bool readQuoted(std::string_view* rest, std::string* text, std::string* reason) {
  while (!rest->empty()) {
    const char c = rest->front();
    rest->remove_prefix(1);
    if (c == '"') {
      return true;
    }
    if (c != '\\') {
      *text += c;
    } else if (!readEscape(rest, text)) {
      *reason = "There is an unknown escape after a \"\\\".";
      return false;
    }
  }
  *reason = "A quote is not closed.";
  return false;
}

}  // namespace

std::string_view trimmed(std::string_view line) {
  const std::size_t first = line.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) {
    return {};
  }
  return line.substr(first, line.find_last_not_of(kBlanks) - first + 1);
}

bool splitProjectWords(std::string_view line, std::vector<ProjectWord>* words,
                       std::string* reason) {
  std::string_view rest = trimmed(line);
  while (!rest.empty()) {
    ProjectWord word;
    word.quoted = rest.front() == '"';
    if (word.quoted) {
      rest.remove_prefix(1);
      if (!readQuoted(&rest, &word.text, reason)) {
        return false;
      }
      if (!rest.empty() && rest.front() != ' ' && rest.front() != '\t') {
        *reason = "A blank is missing after a closing quote.";
        return false;
      }
    } else {
      word.text = rest.substr(0, rest.find_first_of(kBlanks));
      rest.remove_prefix(word.text.size());
    }
    words->push_back(word);
    rest = trimmed(rest);
  }
  return true;
}

std::string quotedWord(std::string_view text) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string result = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      result += '\\';
      result += c;
    } else if (c == '\n' || c == '\r' || c == '\t') {
      result += c == '\n' ? "\\n" : c == '\r' ? "\\r" : "\\t";
    } else if (byte < 0x20 || byte == 0x7F) {
      result += "\\x";
      result += kDigits[byte >> 4];
      result += kDigits[byte & 15];
    } else {
      result += c;
    }
  }
  return result + '"';
}

}  // namespace workbench
