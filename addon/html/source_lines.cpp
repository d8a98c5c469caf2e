#include "addon/html/source_lines.h"

#include <algorithm>

#include "addon/foundation/identifier.h"
#include "addon/foundation/text_file.h"

namespace kesto {

namespace {

constexpr std::size_t kShortestComment = 7;
constexpr std::size_t kShortestMethodComment = 10;
constexpr std::string_view kCalcul = "CALCUL_";
constexpr std::string_view kClassKeyword = "class";
constexpr std::string_view kClassMacro = "CLASS";

bool startsIdentifier(std::string_view line) {
  return !line.empty() && isIdentifierCharacter(line.front());
}

bool contains(std::string_view line, std::string_view text) {
  return line.find(text) != std::string_view::npos;
}

}  // namespace

std::string_view withoutControls(std::string_view line) {
  while (!line.empty() && isControl(line.back())) {
    line.remove_suffix(1);
  }
  return line;
}

std::string_view leadingIdentifier(std::string_view text) {
  return text.substr(
      0, static_cast<std::size_t>(
             std::find_if_not(text.begin(), text.end(), isIdentifierCharacter) - text.begin()));
}

std::string_view trailingIdentifier(std::string_view text) {
  std::size_t begin = text.size();
  while (begin > 0 && isIdentifierCharacter(text[begin - 1])) {
    --begin;
  }
  return text.substr(begin);
}

std::string_view fromIdentifier(std::string_view text) {
  return text.substr(static_cast<std::size_t>(
      std::find_if(text.begin(), text.end(), isIdentifierCharacter) - text.begin()));
}

bool isClassComment(std::string_view line) {
  return line.size() >= kShortestComment && line.starts_with(kClassComment);
}

bool isMethodComment(std::string_view line) {
  return line.size() >= kShortestMethodComment && line.starts_with(kEntryComment) &&
         contains(line, kScope);
}

bool isMacroComment(std::string_view line) {
  return line.size() >= kShortestComment && line.starts_with(kMacroComment);
}

bool isFunctionComment(std::string_view line) {
  return line.size() >= kShortestComment && line.starts_with(kEntryComment);
}

std::size_t classKeywordEnd(std::string_view line) {
  std::size_t end = std::string_view::npos;
  for (const std::string_view keyword : {kClassKeyword, kClassMacro}) {
    const std::size_t begin = line.rfind(keyword);
    if (begin != std::string_view::npos &&
        (end == std::string_view::npos || begin + keyword.size() > end)) {
      end = begin + keyword.size();
    }
  }
  return end;
}

bool isClassDeclaration(std::string_view line) {
  constexpr std::size_t kMoreThan = 6;
  if (line.size() <= kMoreThan || !startsIdentifier(line) || line.back() == '\\') {
    return false;
  }
  const std::size_t end = classKeywordEnd(line);
  return end != std::string_view::npos && (end == line.size() || !isIdentifierCharacter(line[end]));
}

bool isFunctionDefinition(std::string_view line) {
  return line.starts_with(kCalcul) && line.ends_with(')') && contains(line, "(") &&
         !contains(line, kScope);
}

bool isMethodDefinition(std::string_view line) {
  return line.ends_with(')') && startsIdentifier(line) && contains(line, "(") &&
         contains(line, kScope);
}

bool isMacroDefinition(std::string_view line) {
  return line.starts_with(kDefine);
}

}  // namespace kesto
