// Copying files one after the other while a bar tells how much of them all is done. A copy
// grows beside its destination and takes its place when it is whole, with the time of the
// source: whatever fails, the file that was there stays, with its attributes. Plain code;
// user-interface thread, as failures show boxes.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "addon/ide/copy_files.h"

namespace kesto {

// The bar. Numbers are bytes; done never exceeds total.
class CopyProgress {
 public:
  virtual ~CopyProgress() = default;
  // The name is the file's that is being copied. False: there is nobody left to copy for.
  virtual bool show(std::string_view name, std::uint64_t done, std::uint64_t total) = 0;
  // What was shown last has to be seen by now: the bar may skip what nobody has time to see.
  virtual void catchUp() = 0;
};

class CopyRun {
 public:
  // Total: the sizes of all files to come. Boxes are the owner's, a window or null. Files
  // and progress must outlive the run.
  CopyRun(CopyFiles& files, CopyProgress& progress, std::uint64_t total, void* owner);

  // Copies a file over the destination, whose directory must be there. By its end the size,
  // as counted in the total, is done, whatever the file has become meanwhile. False when it
  // failed, which a box has told unless the run is abandoned.
  bool copy(const char* source, const char* destination, std::uint64_t size);
  // The session ended meanwhile: nothing that was there before may be used any more.
  bool abandoned() const { return abandoned_; }

 private:
  // What the box says, and the path behind it; without a text there is none.
  struct Failure {
    const char* text = nullptr;
    const char* path = nullptr;
  };

  Failure transfer(const char* source, const char* destination, std::uint64_t end);
  Failure fill(CopyTarget& to, CopySource& from, const char* source, const char* destination,
               std::uint64_t end);
  bool isTaken(const char* destination, std::uint64_t size);
  bool put(CopyTarget& grown, const char* destination);
  bool tell(const char* source, std::uint64_t done);

  CopyFiles& files_;
  CopyProgress& progress_;
  std::uint64_t total_;
  std::uint64_t done_ = 0;
  void* owner_;
  std::unique_ptr<char[]> buffer_;
  CopyPlace last_place_ = CopyPlace::kFile;  // what stood at the last destination
  bool abandoned_ = false;
};

}  // namespace kesto
