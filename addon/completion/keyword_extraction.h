// Makes a keyword file of a source file: the names of the functions defined in it at the
// start of a line, those of a class after the class's name. Plain, one user.
#pragma once

#include <string>
#include <string_view>

#include "addon/foundation/file_system.h"
#include "addon/foundation/string.h"

namespace kesto {

// The lines of the keyword file for a source of this text.
std::string extractKeywords(std::string_view source);

// The source's path with the ending "kwd"; empty for a path without an ending, and for
// that of a keyword file, which would be overwritten by what is in it.
String keywordFilePath(std::string_view source);

// Asked before a keyword file goes that somebody wrote by hand.
class ReplaceQuestion {
 public:
  virtual ~ReplaceQuestion() = default;
  virtual bool mayReplace(const char* keyword_file) = 0;
};

enum class Extraction {
  kDone,
  kFailed,  // the source cannot be read or the keyword file not be made
  kKept,    // the one that is there was not to be replaced
};

// Writes the keyword file beside the source. Unless it is done, the old one is as it was.
Extraction extractKeywordFile(FileSystem& files, const char* source, ReplaceQuestion& question);

}  // namespace kesto
