#include "workbench/editor/highlight.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "workbench/editor/text_layout.h"

namespace workbench {
namespace {

// In order, for a binary search.
constexpr std::string_view kKeywords[] = {
    "__cdecl",    "__declspec",
    "__export",   "__fastcall",
    "__pascal",   "__stdcall",
    "_export",    "asm",
    "auto",       "bool",
    "break",      "case",
    "catch",      "char",
    "class",      "const",
    "const_cast", "constexpr",
    "continue",   "default",
    "delete",     "do",
    "double",     "dynamic_cast",
    "else",       "enum",
    "explicit",   "extern",
    "false",      "float",
    "for",        "friend",
    "goto",       "if",
    "inline",     "int",
    "long",       "mutable",
    "namespace",  "new",
    "operator",   "private",
    "protected",  "public",
    "register",   "reinterpret_cast",
    "return",     "short",
    "signed",     "sizeof",
    "static",     "static_cast",
    "struct",     "switch",
    "template",   "this",
    "throw",      "true",
    "try",        "typedef",
    "typeid",     "typename",
    "union",      "unsigned",
    "using",      "virtual",
    "void",       "volatile",
    "wchar_t",    "while",
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

class LineSplitter {
 public:
  LineSplitter(std::string_view line, std::vector<TextRun>* runs) : line_(line), runs_(runs) {}

  bool split(bool in_comment) {
    if (in_comment && !comment(0)) {
      return true;
    }
    const std::size_t first = line_.find_first_not_of(" \t", at_);
    const bool directive = first != std::string_view::npos && line_[first] == '#';
    plain_ = directive ? TextKind::kPreprocessor : TextKind::kPlain;
    while (at_ < line_.size()) {
      if (line_.substr(at_, 2) == "//") {
        add(line_.size(), TextKind::kComment);
      } else if (line_.substr(at_, 2) == "/*") {
        if (!comment(2)) {
          return true;
        }
      } else {
        token();
      }
    }
    return false;
  }

 private:
  // False when the comment does not end on this line.
  bool comment(std::size_t skip) {
    const std::size_t end = line_.find("*/", at_ + skip);
    add(end == std::string_view::npos ? line_.size() : end + 2, TextKind::kComment);
    return end != std::string_view::npos;
  }

  void token() {
    const char c = line_[at_];
    std::size_t end = at_ + 1;
    if (c == '"' || c == '\'') {
      while (end < line_.size() && line_[end] != c) {
        end += line_[end] == '\\' ? 2 : 1;
      }
      add(std::min(end + 1, line_.size()), TextKind::kText);
    } else if (isWordByte(c)) {
      while (end < line_.size() && (isWordByte(line_[end]) || (isDigit(c) && line_[end] == '.'))) {
        ++end;
      }
      const bool keyword = std::binary_search(std::begin(kKeywords), std::end(kKeywords),
                                              line_.substr(at_, end - at_));
      add(end, isDigit(c) && plain_ == TextKind::kPlain ? TextKind::kNumber
               : keyword                                ? TextKind::kKeyword
                                                        : plain_);
    } else {
      add(end, plain_);
    }
  }

  void add(std::size_t end, TextKind kind) {
    if (runs_ != nullptr && end > at_) {
      if (!runs_->empty() && runs_->back().kind == kind) {
        runs_->back().to = static_cast<int>(end);
      } else {
        runs_->push_back({static_cast<int>(at_), static_cast<int>(end), kind});
      }
    }
    at_ = end;
  }

  std::string_view line_;
  std::vector<TextRun>* runs_;
  std::size_t at_ = 0;
  TextKind plain_ = TextKind::kPlain;
};

}  // namespace

bool highlightLine(std::string_view line, bool in_comment, std::vector<TextRun>* runs) {
  return LineSplitter(line, runs).split(in_comment);
}

void Highlighter::documentChanged(const DocumentChange& change) {
  const int known = static_cast<int>(begins_in_comment_.size());
  const int from = change.from.line + 1;
  if (known <= from) {
    return;
  }
  const int old_end = std::min(known, change.old_end.line + 1);
  const int new_end = change.new_end.line + 1;
  const auto begin = begins_in_comment_.begin();
  if (old_end == known) {
    begins_in_comment_.resize(static_cast<std::size_t>(from));
  } else if (new_end < old_end) {
    begins_in_comment_.erase(begin + new_end, begin + old_end);
  } else {
    begins_in_comment_.insert(begin + old_end, static_cast<std::size_t>(new_end - old_end), 0);
  }
  if (follows_from_ > old_end) {
    follows_from_ += new_end - old_end;
  }
  follows_from_ = std::max(follows_from_, new_end);
  sure_ = std::min(sure_, from);
}

int Highlighter::makeSure(const Document& document, int line) {
  int turned = 0;
  while (sure_ <= line) {
    const std::size_t next = static_cast<std::size_t>(sure_);
    const std::uint8_t inside =
        highlightLine(document.line(sure_ - 1), begins_in_comment_[next - 1] != 0, nullptr) ? 1 : 0;
    if (next == begins_in_comment_.size()) {
      begins_in_comment_.push_back(inside);
    } else if (begins_in_comment_[next] != inside) {
      begins_in_comment_[next] = inside;
      turned = sure_ + 1;
      follows_from_ = std::max(follows_from_, turned);
    } else if (sure_ >= follows_from_) {
      sure_ = static_cast<int>(begins_in_comment_.size()) - 1;
    }
    ++sure_;
  }
  if (sure_ == static_cast<int>(begins_in_comment_.size())) {
    follows_from_ = 0;
  }
  return turned;
}

bool Highlighter::beginsInComment(const Document& document, int line) {
  makeSure(document, line);
  return begins_in_comment_[static_cast<std::size_t>(line)] != 0;
}

std::vector<TextRun> Highlighter::runs(const Document& document, int line) {
  std::vector<TextRun> result;
  highlightLine(document.line(line), beginsInComment(document, line), &result);
  return result;
}

}  // namespace workbench
