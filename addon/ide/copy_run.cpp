#include "addon/ide/copy_run.h"

#include <algorithm>

#include "addon/foundation/message_box.h"
#include "addon/foundation/path.h"

namespace kesto {
namespace {

constexpr std::size_t kBlock = 16380;

// Files of so many bytes are not copied before it is known that there is a place for them.
constexpr std::uint64_t kLarge = 1 << 20;

constexpr char kOpening[] = "Error in opening file ";
constexpr char kCreating[] = "Error in creating file ";
constexpr char kReading[] = "Error in reading file ";
constexpr char kWriting[] = "Error in writing file ";

}  // namespace

CopyRun::CopyRun(CopyFiles& files, CopyProgress& progress, std::uint64_t total, void* owner)
    : files_(files),
      progress_(progress),
      total_(total),
      owner_(owner),
      buffer_(std::make_unique<char[]>(kBlock)) {}

bool CopyRun::copy(const char* source, const char* destination, std::uint64_t size) {
  const std::uint64_t end = done_ + std::min(size, total_ - done_);
  const Failure failure = abandoned_ ? Failure() : transfer(source, destination, end);
  done_ = end;
  if (failure.text != nullptr && tell(source, done_)) {
    progress_.catchUp();
    showMessage(owner_, (std::string(failure.text) + failure.path).c_str(), "Kesto Addon error",
                kMessageIconHand);
  }
  return failure.text == nullptr && !abandoned_;
}

CopyRun::Failure CopyRun::transfer(const char* source, const char* destination, std::uint64_t end) {
  // The box of the file before may have seen the session end.
  if (!tell(source, done_)) {
    return {};
  }
  const std::unique_ptr<CopySource> from = files_.open(source);
  if (!from) {
    return {kOpening, source};
  }
  const std::unique_ptr<CopyTarget> to =
      isTaken(destination, end - done_) ? nullptr : files_.grow(destination);
  return to ? fill(*to, *from, source, destination, end) : Failure{kCreating, destination};
}

CopyRun::Failure CopyRun::fill(CopyTarget& to, CopySource& from, const char* source,
                               const char* destination, std::uint64_t end) {
  std::uint64_t done = done_;
  do {
    const long size = from.read(buffer_.get(), kBlock);
    if (size < 0) {
      return {kReading, source};
    }
    if (size == 0) {
      to.setModified(from.modified());
      return put(to, destination) ? Failure() : Failure{kCreating, destination};
    }
    if (!to.write(buffer_.get(), static_cast<std::size_t>(size))) {
      return {kWriting, destination};
    }
    done += std::min(static_cast<std::uint64_t>(size), end - done);
  } while (tell(source, done));
  return {};
}

// Where nothing stood at the last destination, nothing is expected at the next: looking in
// vain for a name takes long in a full directory. Should something be there, put meets it.
bool CopyRun::isTaken(const char* destination, std::uint64_t size) {
  if (last_place_ != CopyPlace::kVacant || size >= kLarge) {
    last_place_ = files_.place(destination);
  }
  return last_place_ == CopyPlace::kTaken;
}

bool CopyRun::put(CopyTarget& grown, const char* destination) {
  if (last_place_ == CopyPlace::kVacant && grown.put()) {
    return true;
  }
  last_place_ = files_.place(destination);
  return last_place_ != CopyPlace::kTaken && grown.replace();
}

bool CopyRun::tell(const char* source, std::uint64_t done) {
  abandoned_ = !progress_.show(fileNamePart(source), done, total_);
  return !abandoned_;
}

}  // namespace kesto
