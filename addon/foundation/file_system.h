// The file system as the features read and write it, one step a call: FileSystemWin is
// the real one, tests play it and let its steps fail. Paths are whole. Texts have line
// feeds on this side and the system's line ends on the other. A step that fails leaves
// what was there, but for those that write, which may leave a part.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "addon/foundation/basic.h"

namespace kesto {

struct FileStatus {
  std::int64_t modified;  // as fine as the system keeps it; a later time is greater
  bool is_directory;
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;
  // Nothing when the path's status cannot be read.
  virtual std::optional<FileStatus> status(const char* path) = 0;
  // Replaces text by the file's, in text mode. False when it cannot be read.
  virtual bool read(const char* path, std::string& text) = 0;
  // Whether the file is, byte for byte, what write would leave.
  virtual bool holds(const char* path, std::string_view text) = 0;
  // Creates or overwrites the file.
  virtual bool write(const char* path, std::string_view text) = 0;
  // Creates or overwrites the file with the record's file form, byte for byte.
  virtual bool writeRecord(const char* path, const Basic& record) = 0;
  // Has the record read the file. False when it cannot be opened or the record says so.
  virtual bool readRecord(const char* path, Basic& record) = 0;
  // Goes on after what the file holds.
  virtual bool append(const char* path, std::string_view text) = 0;
  // Returns once the disk itself has what the file holds.
  virtual bool flush(const char* path) = 0;
  // Over what is there; the copy has the file's times.
  virtual bool copy(const char* path, const char* new_path) = 0;
  // Fails when there is a file of the new name.
  virtual bool rename(const char* path, const char* new_path) = 0;
  // The same, but puts the file in the place of one that is there, unless that is a
  // directory or may not be written.
  virtual bool replace(const char* path, const char* new_path) = 0;
  virtual void remove(const char* path) = 0;
  // False when none was made, because there is one or otherwise.
  virtual bool makeDirectory(const char* path) = 0;
  // Of one that holds nothing.
  virtual void removeDirectory(const char* path) = 0;
};

}  // namespace kesto
