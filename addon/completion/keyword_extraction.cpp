#include "addon/completion/keyword_extraction.h"

#include <algorithm>
#include <vector>

#include "addon/completion/keyword_list.h"
#include "addon/foundation/path.h"
#include "addon/foundation/safe_write.h"
#include "addon/foundation/text_file.h"

namespace kesto {

namespace {

constexpr std::string_view kKeywordEnding = "kwd";
constexpr std::string_view kScope = "::";
constexpr std::size_t kSourceLineSize = 1023;

// Blanks and control characters.
bool isBlank(char c) {
  return static_cast<unsigned char>(c) <= ' ';
}

std::string_view withoutBlankEnd(std::string_view text) {
  while (!text.empty() && isBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

std::string_view lastRun(std::string_view text) {
  std::size_t start = text.size();
  while (start > 0 && !isBlank(text[start - 1])) {
    --start;
  }
  return text.substr(start);
}

// Without the marks of a pointer or a reference that is returned.
std::string_view withoutMarks(std::string_view name) {
  while (!name.empty() && (isBlank(name.front()) || name.front() == '*' || name.front() == '&')) {
    name.remove_prefix(1);
  }
  return name;
}

bool isDefinition(std::string_view line) {
  constexpr std::string_view kNoDefinition = ":/#";
  return !line.empty() && !isBlank(line.front()) && kNoDefinition.find(line.front()) == line.npos &&
         line.back() != ';' && line.find('(', 1) != line.npos;
}

struct Name {
  std::string_view of_class;  // empty when it is of none
  std::string_view word;
};

Name definedName(std::string_view line) {
  const std::string_view head = line.substr(0, line.find('('));
  const std::size_t scope = head.find(kScope);
  if (scope == head.npos) {
    return {{}, withoutMarks(lastRun(withoutBlankEnd(head)))};
  }
  return {withoutMarks(lastRun(head.substr(0, scope))),
          withoutMarks(head.substr(scope + kScope.size()))};
}

// "operator||" and "operator|=" are names.
bool isDescribed(const Keyword& keyword) {
  const std::string_view description = keyword.description();
  return !description.empty() &&
         (keyword.text() != "operator" || (description != "|" && description != "="));
}

// What no extraction writes: a description, or a heading between the keywords.
bool isHandmade(std::string_view keyword_file) {
  std::vector<Keyword> keywords;
  readKeywords(keyword_file, keywords);
  const bool described = std::any_of(keywords.begin(), keywords.end(), isDescribed);
  return described || isUtf16(keyword_file) || keyword_file.starts_with('[') ||
         keyword_file.find("\n[") != keyword_file.npos;
}

}  // namespace

std::string extractKeywords(std::string_view source) {
  std::string keywords;
  const auto put = [&keywords](std::string_view text) {
    keywords += text;
    keywords += '\n';
  };
  std::string_view last_class;
  TextLines lines(source, kSourceLineSize);
  for (std::string_view line; lines.next(line);) {
    line = withoutBlankEnd(line);
    const Name name = isDefinition(line) ? definedName(line) : Name{};
    if (name.word.empty()) {
      continue;
    }
    if (!name.of_class.empty() && name.of_class != last_class) {
      put(name.of_class);
      last_class = name.of_class;
    }
    put(name.word);
  }
  return keywords;
}

String keywordFilePath(std::string_view source) {
  const std::string_view name = fileNamePart(source);
  const std::size_t dot = name.rfind('.');
  if (dot == name.npos || equalIgnoringCase(name.substr(dot + 1), kKeywordEnding)) {
    return {};
  }
  String path(source.substr(0, source.size() - name.size() + dot + 1));
  path += kKeywordEnding;
  return path;
}

Extraction extractKeywordFile(FileSystem& files, const char* source, ReplaceQuestion& question) {
  const String path = keywordFilePath(source);
  std::string text;
  if (path.empty() || !files.read(source, text)) {
    return Extraction::kFailed;
  }
  if (files.status(path)) {
    // What cannot be looked at is not replaced.
    std::string old;
    if (!files.read(path, old)) {
      return Extraction::kFailed;
    }
    if (isHandmade(old) && !question.mayReplace(path)) {
      return Extraction::kKept;
    }
  }
  SafeFile file(files, path.view());
  file.write(extractKeywords(text));
  return file.put() ? Extraction::kDone : Extraction::kFailed;
}

}  // namespace kesto
