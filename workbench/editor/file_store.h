// Reading and writing whole files without ever losing what a file held. The
// store is the seam to the disk: tests hand in one that fails. One thread.
#pragma once

#include <cstdint>
#include <string>

namespace workbench {

enum class FileFault {
  kNone,
  kMissing,
  kIsFolder,
  kDenied,
  kTooLarge,
  kReadOnly,
  kDiskFull,
  kLeftAside,   // what the file held has another name now, beside it
  kNotOffered,  // the system has no such step
  kOther,
};

// What is known of a file on disk; two differing stamps mean that it changed.
struct FileStamp {
  bool exists = false;
  bool read_only = false;
  std::uint64_t size = 0;
  std::uint64_t time = 0;
  bool sameContent(const FileStamp& other) const {
    return exists == other.exists && size == other.size && time == other.time;
  }
};

class FileStore {
 public:
  virtual ~FileStore() = default;
  virtual FileStamp stamp(const std::string& path) = 0;
  // Reads the whole file unless it is larger than the limit, in bytes.
  virtual FileFault read(const std::string& path, std::uint64_t limit, std::string* bytes) = 0;
  // Creates the file or empties it, and writes all the bytes through to the disk.
  virtual FileFault write(const std::string& path, const std::string& bytes) = 0;
  // Puts one file in the place of another, which may be missing, in one step;
  // kNotOffered where the system cannot.
  virtual FileFault replace(const std::string& from, const std::string& to) = 0;
  // Gives a file another name, which must be free.
  virtual FileFault move(const std::string& from, const std::string& to) = 0;
  virtual void remove(const std::string& path) = 0;
};

// The largest file an editor takes, in bytes.
inline constexpr std::uint64_t kLargestText = 64u << 20;
// The most line ends it takes: each line costs some memory of its own.
inline constexpr std::int64_t kMostLines = 4000000;

// Writes a temporary file beside the path and puts it in its place. After a
// failure the path holds what it held, and no temporary file stays as long as one
// can be removed; kLeftAside comes only where the system cannot replace a file in
// one step and also fails to take the first of two back. A program that ends in
// the middle leaves a temporary file, "NAME.~0" or a higher number, with NAME cut where
// the path would be too long.
FileFault saveFile(FileStore& store, const std::string& path, const std::string& bytes);

// A sentence for the user, with the path.
std::string describeFault(FileFault fault, const std::string& path);

}  // namespace workbench
