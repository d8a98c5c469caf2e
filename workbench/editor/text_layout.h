// Where the bytes of a line stand on screen, and where words begin and end.
// A cell is one character wide; tabs reach to the next multiple of the tab width.
// Plain values; columns and cells are 0-based.
#pragma once

#include <string_view>

#include "workbench/editor/encoding.h"

namespace workbench {

// The cell where the column begins. A column past the end counts one cell each.
int cellOfColumn(std::string_view line, int column, int tab_width,
                 Encoding encoding = Encoding::kAnsi);
// The column whose cell is nearest to the given one, at most the line's length.
int columnOfCell(std::string_view line, int cell, int tab_width,
                 Encoding encoding = Encoding::kAnsi);
// Cells the whole line takes.
int cellsOfLine(std::string_view line, int tab_width, Encoding encoding = Encoding::kAnsi);

// Every byte beyond ASCII belongs to a word in UTF-8.
bool isWordByte(char c, Encoding encoding = Encoding::kAnsi);
// The start of the next word after the column, or the line's length.
int nextWord(std::string_view line, int column, Encoding encoding = Encoding::kAnsi);
// The start of the word before the column, or 0.
int previousWord(std::string_view line, int column, Encoding encoding = Encoding::kAnsi);
// The bounds of the word (or the run of other characters) at the column.
void wordAround(std::string_view line, int column, int* from, int* to,
                Encoding encoding = Encoding::kAnsi);

// The first line to show so that the line stands a third down a window of so many lines.
int topForHit(int line, int visible);

// The blanks that a line begins with.
std::string_view indentOf(std::string_view line);

}  // namespace workbench
