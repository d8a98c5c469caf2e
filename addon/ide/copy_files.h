// The file system as copying and comparing meet it, in bytes, a step a call: CopyFilesWin
// is the real one, tests play it and let its steps fail. What is handed out is the
// caller's, and closed when it goes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

namespace kesto {

// A file that is read from its start to its end.
class CopySource {
 public:
  virtual ~CopySource() = default;
  // The time of the last writing, as fine as the system keeps it.
  virtual std::int64_t modified() const = 0;
  // Returns the bytes read, 0 at the end, -1 when they cannot be read.
  virtual long read(char* bytes, std::size_t size) = 0;
};

// A file that grows beside the path it is meant for, and is removed unless it is put there.
class CopyTarget {
 public:
  virtual ~CopyTarget() = default;
  virtual bool write(const char* bytes, std::size_t size) = 0;
  // The last thing that is written is its time.
  virtual void setModified(std::int64_t modified) = 0;
  // Where nothing stands, and in the place of a file. Both close the file, and may be tried
  // one after the other.
  virtual bool put() = 0;
  virtual bool replace() = 0;
};

// What stands where a file is to go.
enum class CopyPlace {
  kVacant,
  kFile,   // one that may be written over
  kTaken,  // a directory, or a file that may not
};

class CopyFiles {
 public:
  virtual ~CopyFiles() = default;
  // Whether a file or a directory is there.
  virtual bool exists(const char* path) = 0;
  // Bytes of the file, 0 for a directory; nothing when neither is there.
  virtual std::optional<std::uint64_t> size(const char* path) = 0;
  // Null when it cannot be read.
  virtual std::unique_ptr<CopySource> open(const char* path) = 0;
  virtual CopyPlace place(const char* path) = 0;
  // Null when no file can be made there.
  virtual std::unique_ptr<CopyTarget> grow(const char* path) = 0;
};

}  // namespace kesto
