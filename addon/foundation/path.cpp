#include "addon/foundation/path.h"

#include <algorithm>

namespace kesto {

namespace {

constexpr std::size_t kDriveCharacters = 2;

bool sameUpper(std::string_view text, std::string_view upper) {
  return std::equal(text.begin(), text.end(), upper.begin(), upper.end(),
                    [](char a, char b) { return upperAscii(a) == b; });
}

}  // namespace

std::string_view fileNamePart(std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/");
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::string_view projectNamePart(std::string_view file) {
  constexpr std::size_t kExtension = 4;
  const std::string_view name = fileNamePart(file);
  return name.substr(0, name.size() > kExtension ? name.size() - kExtension : 0);
}

std::string_view directoryPart(std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/");
  return separator == std::string_view::npos ? path.substr(0, 0) : path.substr(0, separator);
}

String joinPath(std::string_view directory, std::string_view name) {
  String path(directory);
  if (!directory.empty() && directory.back() != '\\' && directory.back() != '/') {
    path += "\\";
  }
  path += name;
  return path;
}

std::string_view fileOfTitle(std::string_view title, std::size_t limit) {
  std::string_view file = title.substr(0, limit);
  for (std::size_t i = file.size(); i-- > kDriveCharacters;) {
    const char c = file[i];
    if (c == ':' || c == '*' || (c == ' ' && i + 1 == file.size())) {
      file = file.substr(0, i);
    }
  }
  return file;
}

std::string_view documentationTitle(std::string_view title) {
  return title.substr(0, title.find_last_not_of(" *") + 1);
}

std::string_view fileWithoutLine(std::string_view file) {
  return file.substr(0, file.find(':', kDriveCharacters));
}

void upperAscii(char* text) {
  for (; *text != '\0'; ++text) {
    *text = upperAscii(*text);
  }
}

void lowerAscii(char* text) {
  for (; *text != '\0'; ++text) {
    if (*text >= 'A' && *text <= 'Z') {
      *text = static_cast<char>(*text - 'A' + 'a');
    }
  }
}

bool equalIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return upperAscii(a) == upperAscii(b); });
}

bool titleMatches(std::string_view title, std::string_view wanted_upper) {
  for (std::size_t at = 0; at + wanted_upper.size() <= title.size(); ++at) {
    const bool begins = at == 0 || title[at - 1] == '\\' || title[at - 1] == '/';
    const std::size_t end = at + wanted_upper.size();
    const bool ends = end == title.size() || title[end] == ':';
    if (begins && ends && sameUpper(title.substr(at, wanted_upper.size()), wanted_upper)) {
      return true;
    }
  }
  return false;
}

bool nextListEntry(std::string_view& rest, std::string_view& entry) {
  const std::size_t separator = rest.find(';');
  entry = rest.substr(0, separator);
  entry.remove_prefix(std::min(entry.find_first_not_of(' '), entry.size()));
  entry = entry.substr(0, entry.find_last_not_of(' ') + 1);
  rest =
      separator == std::string_view::npos ? rest.substr(rest.size()) : rest.substr(separator + 1);
  return !entry.empty();
}

}  // namespace kesto
