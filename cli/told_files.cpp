#include "cli/told_files.h"

#include "addon/foundation/path.h"

namespace kesto::cli {

bool ToldFiles::told(bool done, const char* path) {
  if (!done) {
    session_.tellFailure(path);
  }
  return done;
}

// What grows beside a file has a name that starts with a ".".
bool ToldFiles::moved(bool done, const char* new_path) {
  if (done && !fileNamePart(new_path).starts_with('.')) {
    put_.emplace_back(new_path);
  }
  return done;
}

bool ToldFiles::read(const char* path, std::string& text) {
  if (files_.read(path, text)) {
    return true;
  }
  const std::string reason = session_.system().reason();
  if (files_.status(path)) {
    session_.complaints().tell(session_.shown(path), reason);
  }
  return false;
}

bool ToldFiles::write(const char* path, std::string_view text) {
  return told(files_.write(path, text), path);
}

bool ToldFiles::writeRecord(const char* path, const Basic& record) {
  return told(files_.writeRecord(path, record), path);
}

bool ToldFiles::readRecord(const char* path, Basic& record) {
  return files_.readRecord(path, record);
}

bool ToldFiles::append(const char* path, std::string_view text) {
  return told(files_.append(path, text), path);
}

bool ToldFiles::flush(const char* path) {
  return told(files_.flush(path), path);
}

bool ToldFiles::copy(const char* path, const char* new_path) {
  return told(files_.copy(path, new_path), new_path);
}

bool ToldFiles::rename(const char* path, const char* new_path) {
  const bool done = files_.rename(path, new_path);
  const std::string reason = session_.system().reason();
  if (!done && files_.status(path) && !files_.status(new_path)) {
    session_.complaints().tell(session_.shown(new_path), reason);
  }
  return moved(done, new_path);
}

bool ToldFiles::replace(const char* path, const char* new_path) {
  return moved(told(files_.replace(path, new_path), new_path), new_path);
}

bool ToldFiles::makeDirectory(const char* path) {
  const bool done = files_.makeDirectory(path);
  const std::string reason = session_.system().reason();
  if (!done && !files_.status(path)) {
    session_.complaints().tell(session_.shown(path), reason);
  }
  return done;
}

void ToldFolders::list(const char* directory, const char* mask, DirectoryEntries& entries) {
  session_.system().lister().list(directory, mask, entries);
  // Where there is a folder, there is its "." as well.
  bool empty = true;
  entries.each(
      [&empty](DirectoryEntries::Kind, std::string_view, std::string_view) { empty = false; });
  if (empty && mask == std::string_view("*")) {
    session_.tellUnlisted(directory);
  }
}

}  // namespace kesto::cli
