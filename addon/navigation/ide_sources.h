// The files of a search as the IDE holds them, unsaved text included. User-interface
// thread only.
#pragma once

#include "addon/foundation/directory_listing.h"
#include "addon/ide/file_text.h"
#include "addon/navigation/name_search.h"

namespace kesto {

class IdeSources : public SourceTexts {
 public:
  SearchedFiles files() { return {listing_, *this}; }
  std::string_view textOf(const char* path) override {
    text_ = FileText();
    text_ = readFileText(path);
    return text_.view();
  }

 private:
  DirectoryListing listing_;
  FileText text_;
};

}  // namespace kesto
