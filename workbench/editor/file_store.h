// Reading and writing whole files without ever losing what a file held. The
// store is the seam to the disk: tests hand in one that fails. One thread.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

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
  kLeftBeside,  // the file may hold a part; the new text is whole beside it
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
  // The same for a file that is there, which stays itself; *begun tells whether it
  // may have lost what it held.
  virtual FileFault overwrite(const std::string& path, const std::string& bytes, bool* begun) = 0;
  // The file that the path leads to when it is a link; else the path.
  virtual std::string target(const std::string& path) = 0;
  // Whether the new file in the place of this one would lack what people gave to it, such
  // as its mode or its other names; what can be handed on to the new one is, before.
  virtual bool losesByReplacing(const std::string& path, const std::string& by) = 0;
  // The files, by full path, whose name begins with that of the prefix.
  virtual std::vector<std::string> beginningWith(const std::string& prefix) = 0;
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

// Writes a temporary file beside the path, or beside what a link there leads to, and
// puts it in its place; or, where replacing the file would lose something of it, writes
// over it and removes the temporary file. After a failure the path holds what it held,
// and no temporary file stays as long as one can be removed. kLeftAside comes only where
// the system cannot replace a file in one step and also fails to take the first of two
// back; kLeftBeside when writing over the file failed, and replacing it as well.
FileFault saveFile(FileStore& store, const std::string& path, const std::string& bytes);

// The files that a save of this file left when the program ended in its middle.
std::vector<std::string> leftoversOf(FileStore& store, const std::string& path);

// A sentence for the user, with the path.
std::string describeFault(FileFault fault, const std::string& path);

}  // namespace workbench
