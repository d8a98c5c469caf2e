#include "workbench/events/ansi.h"

#include <array>

namespace workbench {
namespace {

// What the bytes 0x80 to 0x9F stand for.
constexpr std::array<unsigned short, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendControl(std::string& out, unsigned code) {
  static constexpr char kDigits[] = "0123456789abcdef";
  switch (code) {
    case '\b':
      out += "\\b";
      return;
    case '\t':
      out += "\\t";
      return;
    case '\n':
      out += "\\n";
      return;
    case '\f':
      out += "\\f";
      return;
    case '\r':
      out += "\\r";
      return;
    default:
      break;
  }
  out += "\\u00";
  out += kDigits[code >> 4 & 15];
  out += kDigits[code & 15];
}

// The number of bytes of the character that starts with this byte, 0 when no
// character does.
size_t characterLength(unsigned char first) {
  if (first < 0x80) {
    return 1;
  }
  if (first < 0xC2 || first > 0xF4) {
    return 0;
  }
  return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

}  // namespace

void appendUtf8(std::string& out, unsigned code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    if (code < 0x10000) {
      out += static_cast<char>(0xE0 | code >> 12);
    } else {
      out += static_cast<char>(0xF0 | code >> 18);
      out += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    }
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

unsigned codeFromAnsi(char ansi) {
  unsigned byte = static_cast<unsigned char>(ansi);
  return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80] : byte;
}

char ansiFromCode(unsigned code) {
  if (code < 0x80 || (code >= 0xA0 && code < 0x100)) {
    return static_cast<char>(code);
  }
  for (size_t i = 0; i < kUpperControls.size(); ++i) {
    if (kUpperControls[i] == code) {
      return static_cast<char>(0x80 + i);
    }
  }
  return '?';
}

std::size_t decodeUtf8(std::string_view text, unsigned* code) {
  static constexpr unsigned kFirstMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  static constexpr unsigned kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const std::size_t length =
      text.empty() ? 0 : characterLength(static_cast<unsigned char>(text[0]));
  if (length == 0 || length > text.size()) {
    return 0;
  }
  *code = static_cast<unsigned char>(text[0]) & kFirstMask[length];
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) {
      return 0;
    }
    *code = *code << 6 | (byte & 0x3F);
  }
  const bool surrogate = *code >= 0xD800 && *code < 0xE000;
  return *code < kLeast[length] || *code > 0x10FFFF || surrogate ? 0 : length;
}

bool ansiFromUtf8(std::string_view utf8, std::string* ansi) {
  ansi->clear();
  while (!utf8.empty()) {
    unsigned code = 0;
    const std::size_t length = decodeUtf8(utf8, &code);
    if (length == 0) {
      ansi->clear();
      return false;
    }
    *ansi += ansiFromCode(code);
    utf8.remove_prefix(length);
  }
  return true;
}

std::string utf8FromAnsi(std::string_view ansi) {
  std::string out;
  out.reserve(ansi.size());
  for (char c : ansi) {
    appendUtf8(out, codeFromAnsi(c));
  }
  return out;
}

std::string jsonString(std::string_view ansi) {
  std::string out = "\"";
  out.reserve(ansi.size() + 2);
  for (char c : ansi) {
    unsigned code = codeFromAnsi(c);
    if (code < 0x20 || code == 0x7F) {
      appendControl(out, code);
    } else {
      if (c == '"' || c == '\\') {
        out += '\\';
      }
      appendUtf8(out, code);
    }
  }
  out += '"';
  return out;
}

}  // namespace workbench
