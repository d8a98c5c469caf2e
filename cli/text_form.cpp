#include "cli/text_form.h"

#include <algorithm>

#include "workbench/events/ansi.h"

namespace kesto::cli {
namespace {

void appendEscape(std::string& json, unsigned char code) {
  constexpr char kDigits[] = "0123456789abcdef";
  switch (code) {
    case '\t':
      json += "\\t";
      break;
    case '\n':
      json += "\\n";
      break;
    case '\r':
      json += "\\r";
      break;
    default:
      json += "\\u00";
      json += kDigits[code >> 4];
      json += kDigits[code & 15];
  }
}

}  // namespace

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return (c & '\x80') == 0; });
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    unsigned code = 0;
    const std::size_t length = workbench::decodeUtf8(text, &code);
    if (length == 0) {
      return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

std::string utf8Of(std::string_view text) {
  return isAscii(text) || isUtf8(text) ? std::string(text) : workbench::utf8FromAnsi(text);
}

std::string ansiOf(std::string_view text) {
  std::string ansi;
  return isAscii(text) || !workbench::ansiFromUtf8(text, &ansi) ? std::string(text) : ansi;
}

std::string jsonOf(std::string_view utf8) {
  constexpr unsigned kUnknown = 0xFFFD;
  std::string json = "\"";
  json.reserve(utf8.size() + 2);
  while (!utf8.empty()) {
    unsigned code = 0;
    const std::size_t length = workbench::decodeUtf8(utf8, &code);
    if (length == 0) {
      workbench::appendUtf8(json, kUnknown);
    } else if (code < ' ' || code == 0x7F) {
      appendEscape(json, static_cast<unsigned char>(code));
    } else {
      json += code == '"' || code == '\\' ? "\\" : "";
      json += utf8.substr(0, length);
    }
    utf8.remove_prefix(std::max<std::size_t>(length, 1));
  }
  json += '"';
  return json;
}

}  // namespace kesto::cli
