#include "workbench/editor/encoding.h"

#include <algorithm>

#include "workbench/events/ansi.h"

namespace workbench {
namespace {

std::string_view from(std::string_view line, int column) {
  return line.substr(static_cast<std::size_t>(column));
}

int sizeOf(std::string_view line) {
  return static_cast<int>(line.size());
}

}  // namespace

bool isAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

Encoding encodingOf(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) {
    return Encoding::kUtf8;
  }
  bool beyond = false;
  while (!bytes.empty()) {
    unsigned code = 0;
    const std::size_t length = decodeUtf8(bytes, &code);
    if (length == 0) {
      return Encoding::kAnsi;
    }
    beyond = beyond || length > 1;
    bytes.remove_prefix(length);
  }
  return beyond ? Encoding::kUtf8 : Encoding::kAnsi;
}

unsigned characterAt(std::string_view line, int column, Encoding encoding, int* length) {
  *length = 1;
  const std::string_view rest = from(line, column);
  if (encoding == Encoding::kUtf8) {
    unsigned code = 0;
    const std::size_t size = decodeUtf8(rest, &code);
    if (size > 0) {
      *length = static_cast<int>(size);
      return code;
    }
  }
  return codeFromAnsi(rest[0]);
}

int nextColumn(std::string_view line, int column, Encoding encoding) {
  int length = 1;
  if (column < sizeOf(line)) {
    characterAt(line, column, encoding, &length);
  }
  return column + length;
}

int previousColumn(std::string_view line, int column, Encoding encoding) {
  return startOfCharacter(line, std::max(0, column - 1), encoding);
}

int startOfCharacter(std::string_view line, int column, Encoding encoding) {
  if (encoding == Encoding::kAnsi || column >= sizeOf(line)) {
    return column;
  }
  for (int start = column; start >= 0 && start > column - 4; --start) {
    int length = 1;
    characterAt(line, start, encoding, &length);
    if (start + length > column) {
      // A byte inside a character begins none itself.
      if (length > 1 || start < column) {
        return start;
      }
    }
  }
  return column;
}

int charactersBefore(std::string_view line, int column, Encoding encoding) {
  if (encoding == Encoding::kAnsi) {
    return column;
  }
  int count = 0;
  int at = 0;
  while (at < column && at < sizeOf(line)) {
    at = nextColumn(line, at, encoding);
    ++count;
  }
  return count + std::max(0, column - std::max(at, sizeOf(line)));
}

int columnOfCharacter(std::string_view line, int character, Encoding encoding) {
  if (encoding == Encoding::kAnsi) {
    return character;
  }
  int at = 0;
  while (character > 0 && at < sizeOf(line)) {
    at = nextColumn(line, at, encoding);
    --character;
  }
  return at + character;
}

std::string toAnsi(std::string_view text, Encoding encoding) {
  if (encoding == Encoding::kAnsi) {
    return std::string(text);
  }
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    unsigned code = 0;
    const std::size_t size = decodeUtf8(text, &code);
    result += size > 0 ? ansiFromCode(code) : text[0];
    text.remove_prefix(std::max<std::size_t>(1, size));
  }
  return result;
}

std::string fromAnsi(std::string_view ansi, Encoding encoding) {
  return encoding == Encoding::kAnsi ? std::string(ansi) : utf8FromAnsi(ansi);
}

std::wstring toWide(std::string_view text, Encoding encoding) {
  std::wstring result;
  for (int at = 0; at < sizeOf(text);) {
    int length = 1;
    const unsigned code = characterAt(text, at, encoding, &length);
    if (code < 0x10000) {
      result += static_cast<wchar_t>(code);
    } else {
      result += static_cast<wchar_t>(0xD7C0 + (code >> 10));
      result += static_cast<wchar_t>(0xDC00 + (code & 0x3FF));
    }
    at += length;
  }
  return result;
}

bool fromWide(std::wstring_view wide, Encoding encoding, std::string* text) {
  text->clear();
  for (std::size_t i = 0; i < wide.size(); ++i) {
    char32_t code = wide[i];
    const char32_t next = i + 1 < wide.size() ? wide[i + 1] : 0;
    if (code >= 0xD800 && code < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
      code = 0x10000 + ((code - 0xD800) << 10) + (next - 0xDC00);
      ++i;
    } else if (code >= 0xD800 && code < 0xE000) {
      code = '?';  // half of a pair is no character
    }
    if (encoding == Encoding::kUtf8) {
      appendUtf8(*text, code);
      continue;
    }
    *text += ansiFromCode(code);
    if (text->back() == '?' && code != '?') {
      return false;
    }
  }
  return true;
}

}  // namespace workbench
