// Reads the text of one source, or of the text file beside it, into the model: marked
// comments, and the declarations that they are about. Refers to the project and the file
// for as long as it lives; one reader a text.
#pragma once

#include <string>
#include <string_view>

#include "addon/html/ht_projet.h"

namespace kesto {

class SourceReader {
 public:
  SourceReader(htProjet& projet, htFile& file) : projet_(projet), file_(file) {}

  // False after a failed internal check, which was shown.
  bool read(std::string_view text);

 private:
  using FindOrAdd = htSymbol& (htProjet::*)(std::string_view name, htFile& in, EntryKind kind);

  enum class State { kIdle, kComment, kClassBody, kMacro };

  bool readLine(std::string_view line);
  bool readIdle(std::string_view line);
  bool readHeader(std::string_view line);
  bool readDeclaration(std::string_view line);
  void readCommentLine(std::string_view line);

  void beginClassComment(std::string_view line);
  bool beginMethodComment(std::string_view line);
  // The line from the name of a macro or function on.
  void beginSymbolComment(std::string_view line, FindOrAdd find_or_add);
  bool beginClassBody(std::string_view line);
  bool addFunction(std::string_view line);
  bool addMethod(std::string_view line);
  void beginMacro(std::string_view line);

  // From here on, lines are collected for the text of the entry.
  void begin(State state, htSymbol& entry, String htSymbol::*text);
  void collect(std::string_view line, std::string_view end);
  // Hands the collected lines over; idle again.
  void finish();

  htProjet& projet_;
  htFile& file_;
  State state_ = State::kIdle;
  bool in_plain_comment_ = false;
  htSymbol* entry_ = nullptr;  // whose text is collected, while not idle
  String htSymbol::*text_ = nullptr;
  std::string collected_;
};

}  // namespace kesto
