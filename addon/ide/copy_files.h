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
  virtual std::uint64_t size() const = 0;  // bytes
  // The time of the last writing, as fine as the system keeps it.
  virtual std::int64_t modified() const = 0;
  // Returns the bytes read, 0 at the end, -1 when they cannot be read.
  virtual long read(char* bytes, std::size_t size) = 0;
};

// A file that grows. What is not put anywhere stays where it was created.
class CopyTarget {
 public:
  virtual ~CopyTarget() = default;
  virtual bool write(const char* bytes, std::size_t size) = 0;
  // The last thing that is written is its time.
  virtual void setModified(std::int64_t modified) = 0;
  // Both close the file and give it that name. One fails when anything is there; the other
  // puts the file in its place, unless that may not be written.
  virtual bool rename(const char* new_path) = 0;
  virtual bool replace(const char* new_path) = 0;
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
  // A new file, or an empty one in place of what was there; null on failure.
  virtual std::unique_ptr<CopyTarget> create(const char* path) = 0;
  virtual void remove(const char* path) = 0;
};

}  // namespace kesto
