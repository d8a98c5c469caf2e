#include "addon/foundation/safe_write.h"

#include <string>

#include "addon/foundation/path.h"

namespace kesto {

namespace {

// The old text of the first of two files while the second is put: unlike oldTextPath's file
// it outlives the steps of a system without a replacing move.
constexpr const char* kKeptEnding = ".kesto-was";

// Where the system has no room for a longer name, the file's own with another last character.
String besidePath(std::string_view path, const char* ending, char mark) {
  const std::string_view file = fileNamePart(path);
  const std::string_view directory = path.substr(0, path.size() - file.size());
  String name(".");
  name += file;
  name += ending;
  const std::size_t size = name.view().size();
  if (!file.empty() && (size > kNameLimit || directory.size() + size > kPathLimit)) {
    std::string short_name(file);
    short_name.back() = mark != file.back() ? mark : '_';
    name = String(short_name);
  }
  return joinPath(directory, name.view());
}

String keptPath(std::string_view path) {
  return besidePath(path, kKeptEnding, '$');
}

}  // namespace

// The endings are none of a source's in their first three letters either, which is what
// the short names of old systems keep.
String newTextPath(std::string_view path) {
  return besidePath(path, ".kesto-new", '~');
}

String oldTextPath(std::string_view path) {
  return besidePath(path, ".kesto-old", '!');
}

SafeFile::SafeFile(FileSystem& files, std::string_view path)
    : files_(files), path_(path), new_text_(newTextPath(path)) {}

SafeFile::~SafeFile() {
  if (state_ != State::kEmpty && state_ != State::kPut) {
    files_.remove(new_text_);
  }
}

void SafeFile::write(std::string_view text) {
  bool written = false;
  if (state_ == State::kEmpty) {
    written = files_.write(new_text_, text);
  } else if (state_ == State::kWriting) {
    written = files_.append(new_text_, text);
  }
  state_ = written ? State::kWriting : State::kFailed;
}

void SafeFile::writeRecord(const Basic& record) {
  const bool written = state_ == State::kEmpty && files_.writeRecord(new_text_, record);
  state_ = written ? State::kWriting : State::kFailed;
}

bool SafeFile::finish() {
  if (state_ == State::kEmpty) {
    write({});
  }
  if (state_ == State::kWriting) {
    state_ = files_.flush(new_text_) ? State::kFinished : State::kFailed;
  }
  return state_ == State::kFinished;
}

bool SafeFile::put() {
  if (!finish() || !files_.replace(new_text_, path_)) {
    return false;
  }
  state_ = State::kPut;
  return true;
}

bool SafeFile::keepOld() {
  had_old_ = files_.status(path_).has_value();
  return !had_old_ || files_.copy(path_, keptPath(path_.view()));
}

void SafeFile::dropOld() {
  if (had_old_) {
    files_.remove(keptPath(path_.view()));
  }
}

void SafeFile::restoreOld() {
  if (had_old_) {
    files_.replace(keptPath(path_.view()), path_);
  } else {
    files_.remove(path_);
  }
}

bool putBoth(SafeFile& first, SafeFile& second) {
  if (!first.finish() || !second.finish()) {
    return false;
  }
  if (!first.keepOld() || !first.put()) {
    first.dropOld();
    return false;
  }
  if (!second.put()) {
    first.restoreOld();
    return false;
  }
  first.dropOld();
  return true;
}

// Replacing a file that is not there costs more questions than renaming to it.
bool putText(FileSystem& files, const char* grown, const char* path, std::string_view text) {
  if (files.write(grown, text) && (files.rename(grown, path) || files.replace(grown, path))) {
    return true;
  }
  files.remove(grown);
  return false;
}

bool replaceInSteps(FileSystem& files, const char* path, const char* new_path) {
  const String aside = oldTextPath(new_path);
  const bool there = files.status(new_path).has_value();
  if (there) {
    files.remove(aside);  // of a time when only this was left to do
    if (!files.rename(new_path, aside)) {
      return false;
    }
  }
  if (!files.rename(path, new_path)) {
    if (there) {
      files.rename(aside, new_path);
    }
    return false;
  }
  files.remove(aside);
  return true;
}

void endReplacing(FileSystem& files, const char* path) {
  const String aside = oldTextPath(path);
  if (files.status(path) || !files.status(aside)) {
    return;
  }
  // The old file steps aside for a new one that is whole.
  if (files.rename(newTextPath(path), path)) {
    files.remove(aside);
  } else {
    files.rename(aside, path);
  }
}

}  // namespace kesto
