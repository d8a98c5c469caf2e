// New texts for files that somebody may miss. A new text is written beside its file and
// takes its place when it is whole: whatever fails, the file is as it was and nothing else
// is left. Beside a file means under its name with a "." before it and ".kesto-new" behind,
// or, where that would be too long, with "~" as its last character. A process that is
// ended on the way leaves at most that one file, which the next writing overwrites and no
// mask of sources fits. Refer to the file system; any thread.
#pragma once

#include <string_view>

#include "addon/foundation/file_system.h"
#include "addon/foundation/string.h"

namespace kesto {

// Where the new text of a file grows, and where its old one waits while that is needed.
String newTextPath(std::string_view path);
String oldTextPath(std::string_view path);

class SafeFile {
 public:
  SafeFile(FileSystem& files, std::string_view path);
  // What was not put is removed.
  ~SafeFile();
  SafeFile(const SafeFile&) = delete;
  SafeFile& operator=(const SafeFile&) = delete;

  // Goes on with the new text. One piece that fails is told by finish and put.
  void write(std::string_view text);
  // The record's file form, byte for byte, is all of the new file.
  void writeRecord(const Basic& record);
  // Whether the new text is whole and on the disk; nothing can follow it. Whoever fills
  // the file of newTextPath by other means than write begins with it.
  bool finish();
  // Finishes, and puts the new text in its place.
  bool put();

 private:
  friend bool putBoth(SafeFile& first, SafeFile& second);
  bool keepOld();
  void dropOld();
  void restoreOld();

  enum class State { kEmpty, kWriting, kFinished, kPut, kFailed };

  FileSystem& files_;
  String path_;
  String new_text_;
  State state_ = State::kEmpty;
  bool had_old_ = false;
};

// Puts the new texts of two files that only fit each other in their places, or neither.
// A process that is ended in between leaves the first with its new text and the second
// with its old one.
bool putBoth(SafeFile& first, SafeFile& second);

// One text, written at grown and put at path, for files that are made anew at any time:
// the disk may take its time.
bool putText(FileSystem& files, const char* grown, const char* path, std::string_view text);

// What FileSystem::replace is where the system has no such step. The old file waits at
// its oldTextPath; a process that is ended in between leaves both beside.
bool replaceInSteps(FileSystem& files, const char* path, const char* new_path);
// Ends what it began for a SafeFile when the process ended between its steps.
void endReplacing(FileSystem& files, const char* path);

}  // namespace kesto
