// A file that editors show: its text and what is known of it on disk. Shared by
// its views; it goes with the last one. Plain values.
#pragma once

#include <string>

#include "workbench/editor/document.h"
#include "workbench/editor/file_store.h"

namespace workbench {

struct OpenFile {
  std::string path;
  Document document;
  // The file when it was last read or written.
  FileStamp stamp;
  // The last state on disk that the user was told of.
  FileStamp noticed;
  // Not there when it was last looked for.
  bool missed = false;
  // What an interrupted save left and the document took over; goes when it is saved.
  std::string leftover;
  // Never written yet: its path is only a proposal.
  bool untitled = false;
};

}  // namespace workbench
