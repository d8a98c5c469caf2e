#include "workbench/editor/text_layout.h"

#include <algorithm>
#include <cstddef>

namespace workbench {
namespace {

enum class Kind { kBlank, kWord, kOther };

Kind kindOf(char c, Encoding encoding) {
  if (c == ' ' || c == '\t') {
    return Kind::kBlank;
  }
  return isWordByte(c, encoding) ? Kind::kWord : Kind::kOther;
}

Kind kindAt(std::string_view line, int column, Encoding encoding) {
  return kindOf(line[static_cast<std::size_t>(column)], encoding);
}

int advance(int cell, char c, int tab_width) {
  return c == '\t' ? (cell / tab_width + 1) * tab_width : cell + 1;
}

}  // namespace

bool isWordByte(char c, Encoding encoding) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= (encoding == Encoding::kUtf8 ? 0x80 : 0xC0);
}

int cellOfColumn(std::string_view line, int column, int tab_width, Encoding encoding) {
  const int length = static_cast<int>(line.size());
  int cell = 0;
  for (int i = 0; i < column && i < length; i = nextColumn(line, i, encoding)) {
    cell = advance(cell, line[static_cast<std::size_t>(i)], tab_width);
  }
  return cell + std::max(0, column - length);
}

int columnOfCell(std::string_view line, int wanted, int tab_width, Encoding encoding) {
  const int length = static_cast<int>(line.size());
  int cell = 0;
  for (int i = 0; i < length; i = nextColumn(line, i, encoding)) {
    const int next = advance(cell, line[static_cast<std::size_t>(i)], tab_width);
    if (next > wanted) {
      return wanted - cell < next - wanted ? i : nextColumn(line, i, encoding);
    }
    cell = next;
  }
  return length;
}

int cellsOfLine(std::string_view line, int tab_width, Encoding encoding) {
  return cellOfColumn(line, static_cast<int>(line.size()), tab_width, encoding);
}

int nextWord(std::string_view line, int column, Encoding encoding) {
  const int length = static_cast<int>(line.size());
  int i = std::clamp(column, 0, length);
  if (i < length) {
    const Kind kind = kindAt(line, i, encoding);
    while (i < length && kindAt(line, i, encoding) == kind) {
      ++i;
    }
  }
  while (i < length && kindAt(line, i, encoding) == Kind::kBlank) {
    ++i;
  }
  return i;
}

int previousWord(std::string_view line, int column, Encoding encoding) {
  int i = std::clamp(column, 0, static_cast<int>(line.size()));
  while (i > 0 && kindAt(line, i - 1, encoding) == Kind::kBlank) {
    --i;
  }
  if (i > 0) {
    const Kind kind = kindAt(line, i - 1, encoding);
    while (i > 0 && kindAt(line, i - 1, encoding) == kind) {
      --i;
    }
  }
  return i;
}

void wordAround(std::string_view line, int column, int* from, int* to, Encoding encoding) {
  const int length = static_cast<int>(line.size());
  *from = *to = std::clamp(column, 0, length);
  if (length == 0) {
    return;
  }
  const Kind kind = kindAt(line, std::min(*from, length - 1), encoding);
  while (*from > 0 && kindAt(line, *from - 1, encoding) == kind) {
    --*from;
  }
  while (*to < length && kindAt(line, *to, encoding) == kind) {
    ++*to;
  }
}

int topForHit(int line, int visible) {
  return std::max(0, line - visible / 3);
}

std::string_view indentOf(std::string_view line) {
  return line.substr(0, std::min(line.find_first_not_of(" \t"), line.size()));
}

}  // namespace workbench
