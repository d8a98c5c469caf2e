#include "addon/html/source_reader.h"

#include "addon/foundation/assertion.h"
#include "addon/foundation/text_file.h"
#include "addon/html/source_lines.h"

namespace kesto {

namespace {

constexpr std::size_t kLineLimit = 4096;
constexpr std::size_t npos = std::string_view::npos;

}  // namespace

bool SourceReader::read(std::string_view text) {
  TextLines lines(text, kLineLimit);
  std::string_view line;
  while (lines.next(line)) {
    if (!readLine(withoutControls(line))) {
      return false;
    }
  }
  finish();
  return true;
}

bool SourceReader::readLine(std::string_view line) {
  if (line.find("/*") != npos) {
    in_plain_comment_ = true;
  }
  if (line.find("*/") != npos) {
    in_plain_comment_ = false;
  }
  switch (state_) {
    case State::kIdle:
      return readIdle(line);
    case State::kComment:
      readCommentLine(line);
      break;
    case State::kClassBody:
      collect(line, "\n");
      if (line.starts_with('}')) {
        finish();
      }
      break;
    case State::kMacro:
      collect(line, "\n");
      if (!line.ends_with('\\')) {
        finish();
      }
      break;
  }
  return true;
}

bool SourceReader::readIdle(std::string_view line) {
  return line.starts_with('/') ? readHeader(line) : in_plain_comment_ || readDeclaration(line);
}

bool SourceReader::readHeader(std::string_view line) {
  if (isClassComment(line)) {
    beginClassComment(line);
  } else if (isMethodComment(line)) {
    return beginMethodComment(line);
  } else if (isMacroComment(line)) {
    beginSymbolComment(line.substr(kMacroComment.size()), &htProjet::findOrAddMacro);
  } else if (isFunctionComment(line)) {
    beginSymbolComment(line.substr(kEntryComment.size()), &htProjet::findOrAddFunction);
  } else if (line == kFileComment) {
    begin(State::kComment, file_, &htSymbol::documentation);
  }
  return true;
}

bool SourceReader::readDeclaration(std::string_view line) {
  if (isClassDeclaration(line)) {
    return beginClassBody(line);
  }
  if (isFunctionDefinition(line)) {
    return addFunction(line);
  }
  if (isMethodDefinition(line)) {
    return addMethod(line);
  }
  if (isMacroDefinition(line)) {
    beginMacro(line);
  }
  return true;
}

void SourceReader::readCommentLine(std::string_view line) {
  if (line.find("*/") != npos) {
    finish();
  } else if (line.ends_with('~')) {
    static constexpr char kMarkedEnd[] = {kMarkedLine, '\n'};
    if (!line.starts_with("//")) {
      collect(line.substr(0, line.size() - 1), {kMarkedEnd, sizeof kMarkedEnd});
    }
  } else if (!line.starts_with("//")) {
    collect(line, "\n");
  }
}

void SourceReader::beginClassComment(std::string_view line) {
  line.remove_prefix(kClassComment.size());
  const std::string_view name = leadingIdentifier(line);
  htClass& entry = projet_.findOrAddClass(name, file_);
  entry.brief = fromIdentifier(line.substr(name.size()));
  begin(State::kComment, entry, &htSymbol::documentation);
}

bool SourceReader::beginMethodComment(std::string_view line) {
  line.remove_prefix(kEntryComment.size());
  const std::size_t dp = line.find(kScope);
  if (!checkThat(dp != npos, "dp!=NULL", "html", __LINE__)) {
    return false;
  }
  htClass& of = projet_.findOrAddClass(line.substr(0, dp), file_);
  const std::string_view name = leadingIdentifier(line.substr(dp + kScope.size()));
  begin(State::kComment, projet_.findOrAddMethod(of, name, EntryKind::kDocumentation),
        &htSymbol::documentation);
  return true;
}

void SourceReader::beginSymbolComment(std::string_view line, FindOrAdd find_or_add) {
  const std::string_view name = leadingIdentifier(line);
  htSymbol& entry = (projet_.*find_or_add)(name, file_, EntryKind::kDocumentation);
  entry.brief = line.substr(name.size());
  begin(State::kComment, entry, &htSymbol::documentation);
}

bool SourceReader::beginClassBody(std::string_view line) {
  const std::size_t cla = classKeywordEnd(line);
  if (!checkThat(cla != npos, "cla!=NULL", "html", __LINE__)) {
    return false;
  }
  const std::string_view name = leadingIdentifier(fromIdentifier(line.substr(cla)));
  begin(State::kClassBody, projet_.findOrAddClass(name, file_), &htSymbol::declaration);
  collect(line, "\n");
  return true;
}

bool SourceReader::addFunction(std::string_view line) {
  const std::size_t par = line.find('(');
  if (!checkThat(par != npos, "par!=NULL", "html", __LINE__)) {
    return false;
  }
  const std::string_view name = trailingIdentifier(line.substr(0, par));
  htSymbol& entry = projet_.findOrAddFunction(name, file_, EntryKind::kDeclaration);
  entry.declaration += line;
  entry.declaration += "\n";
  return true;
}

bool SourceReader::addMethod(std::string_view line) {
  const std::size_t dp = line.find(kScope);
  if (!checkThat(dp != npos, "dp!=NULL", "html", __LINE__)) {
    return false;
  }
  const std::string_view class_name = trailingIdentifier(line.substr(0, dp));
  const std::string_view rest = line.substr(dp + kScope.size());
  // A "::" among the parameters is followed by no further parenthesis: its name is all
  // that follows.
  const std::string_view name = rest.substr(0, rest.find('('));
  htClass& of = projet_.findOrAddClass(class_name, file_);
  htSymbol& entry = projet_.findOrAddMethod(of, name, EntryKind::kDeclaration);
  entry.declaration += line.substr(0, dp - class_name.size());
  entry.declaration += rest;
  entry.declaration += "\n";
  return true;
}

void SourceReader::beginMacro(std::string_view line) {
  const std::string_view from_name = fromIdentifier(line.substr(kDefine.size()));
  const std::string_view name = leadingIdentifier(from_name);
  if (name.size() == from_name.size()) {
    return;
  }
  begin(State::kMacro, projet_.findOrAddMacro(name, file_, EntryKind::kDeclaration),
        &htSymbol::declaration);
  collect(line, "\n");
  if (!line.ends_with('\\')) {
    finish();
  }
}

void SourceReader::begin(State state, htSymbol& entry, String htSymbol::*text) {
  state_ = state;
  entry_ = &entry;
  text_ = text;
}

// A String is made anew at each append, so the lines are put together first; what it
// cannot hold is not collected either.
void SourceReader::collect(std::string_view line, std::string_view end) {
  if (collected_.size() < String::kMaxLength) {
    collected_ += line;
    collected_ += end;
  }
}

void SourceReader::finish() {
  if (state_ != State::kIdle) {
    entry_->*text_ += std::string_view(collected_);
    collected_.clear();
    state_ = State::kIdle;
  }
}

}  // namespace kesto
