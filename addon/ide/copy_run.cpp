#include "addon/ide/copy_run.h"

#include <algorithm>

#include "addon/foundation/message_box.h"
#include "addon/foundation/path.h"
#include "addon/foundation/safe_write.h"

namespace kesto {
namespace {

constexpr std::size_t kBlock = 16380;

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
  if (failure.text != nullptr) {
    showMessage(owner_, (std::string(failure.text) + failure.path).c_str(), "Kesto Addon error",
                kMessageIconHand);
    return false;
  }
  return !abandoned_;
}

CopyRun::Failure CopyRun::transfer(const char* source, const char* destination,
                                   std::uint64_t end) {
  // The box of the file before may have seen the session end.
  if (!tell(source, done_)) {
    return {};
  }
  const std::unique_ptr<CopySource> from = files_.open(source);
  if (!from) {
    return {kOpening, source};
  }
  const String grown = newTextPath(destination);
  std::unique_ptr<CopyTarget> to =
      files_.mayBeReplaced(destination) ? files_.create(grown) : nullptr;
  if (!to) {
    return {kCreating, destination};
  }
  Failure failure = fill(*from, *to, source, destination, end);
  to.reset();
  if (failure.text == nullptr && !abandoned_ && !files_.put(grown, destination)) {
    failure = {kCreating, destination};
  }
  if (failure.text != nullptr || abandoned_) {
    files_.remove(grown);
  }
  return failure;
}

CopyRun::Failure CopyRun::fill(CopySource& from, CopyTarget& to, const char* source,
                               const char* destination, std::uint64_t end) {
  std::uint64_t done = done_;
  do {
    const long size = from.read(buffer_.get(), kBlock);
    if (size < 0) {
      return {kReading, source};
    }
    if (size == 0) {
      return to.finish(from.modified()) ? Failure() : Failure{kWriting, destination};
    }
    if (!to.write(buffer_.get(), static_cast<std::size_t>(size))) {
      return {kWriting, destination};
    }
    done += std::min(static_cast<std::uint64_t>(size), end - done);
  } while (tell(source, done));
  return {};
}

bool CopyRun::tell(const char* source, std::uint64_t done) {
  abandoned_ = !progress_.show(fileNamePart(source), done, total_);
  return !abandoned_;
}

}  // namespace kesto
