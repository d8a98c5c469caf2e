// The file system as groupware sees it: GroupFilesWin is the real one, tests play it and
// let its steps fail. Paths are whole. A step that fails leaves what was there.
// User-interface thread only.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "addon/foundation/directory_lister.h"

namespace kesto {

// A directory counts as one that may be written: nothing can be put in its place.
struct FileFacts {
  static constexpr std::int64_t kTicksPerSecond = 10'000'000;

  std::int64_t modified = 0;  // last writing, in ticks
  std::int64_t size = 0;      // bytes
  bool writable = false;

  // A part of a second makes no difference between two copies.
  std::int64_t seconds() const { return modified / kTicksPerSecond; }
  bool operator==(const FileFacts&) const = default;
};

// Takes what a folder holds.
class FileListener {
 public:
  virtual ~FileListener() = default;
  // The short name is empty when there is none besides the name. Both live for the call.
  virtual void add(DirectoryEntries::Kind kind, std::string_view name, std::string_view short_name,
                   const FileFacts& facts) = 0;
};

// The part of it that looks on.
class GroupListing {
 public:
  virtual ~GroupListing() = default;
  // Tells what the system lists for "directory\mask" in its order, volume labels left out.
  virtual void list(const char* directory, const char* mask, FileListener& listener) = 0;
  // Nothing when there is no such file, or it cannot be asked.
  virtual std::optional<FileFacts> facts(const char* path) = 0;
};

class GroupFiles : public GroupListing {
 public:
  virtual bool isDirectory(const char* path) = 0;
  // A file or a folder.
  virtual bool holdsAnything(const char* directory) = 0;
  virtual bool makeDirectory(const char* path) = 0;
  // The file's read-only flag; its other attributes stay.
  virtual bool setWritable(const char* path, bool writable) = 0;
  // Puts a copy with the file's time in the place of a writable destination or of none.
  // Tells the person how far the whole action is, and what failed.
  virtual bool copy(const char* path, const char* new_path) = 0;
  // The same to a new file, without a word.
  virtual bool copyAside(const char* path, const char* new_path) = 0;
  // Whether both can be read and hold the same bytes.
  virtual bool sameText(const char* path, const char* other_path) = 0;
  // Fails when there is a file of the new name.
  virtual bool rename(const char* path, const char* new_path) = 0;
  virtual bool writeText(const char* path, const std::string& text) = 0;
  // Tells the person, if there is one, that no file could be made there.
  virtual void tellRefused(const char* path) = 0;
};

}  // namespace kesto
