#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>

#include "addon/foundation/text_file.h"
#include "cli/posix/disk_files.h"
#include "cli/posix/disk_listing.h"
#include "cli/system.h"

namespace kesto::cli {
namespace {

class OwnedFile {
 public:
  explicit OwnedFile(int file) : file_(file) {}
  ~OwnedFile() {
    const int fault = errno;
    if (file_ >= 0) {
      close(file_);
    }
    errno = fault;
  }
  OwnedFile(const OwnedFile&) = delete;
  OwnedFile& operator=(const OwnedFile&) = delete;
  int get() const { return file_; }

 private:
  int file_;
};

class SystemPosix : public System {
 public:
  DirectoryLister& lister() override { return listing_; }
  FileSystem& files() override { return files_; }
  GroupListing& group() override { return listing_; }

  char separator() const override { return '/'; }
  bool isUtf8() const override { return true; }
  std::string corePath(std::string_view given) override { return names_.corePath(given); }
  std::string diskPath(std::string_view core) override { return names_.find(core); }
  bool readBytes(const char* core, std::string_view& bytes) override;

  TaskDate utcToday() override {
    const std::time_t now = std::time(nullptr);
    std::tm utc = {};
    gmtime_r(&now, &utc);
    TaskDate today;
    today.year = static_cast<std::uint16_t>(utc.tm_year + 1900);
    today.month = static_cast<std::uint16_t>(utc.tm_mon + 1);
    today.day = static_cast<std::uint16_t>(utc.tm_mday);
    return today;
  }
  bool isTerminal(FILE* stream) override { return isatty(fileno(stream)) != 0; }
  std::string reason() override { return strerror(errno); }

 private:
  DiskNames names_;
  DiskListing listing_{names_};
  DiskFiles files_{names_};
  std::unique_ptr<char[]> buffer_;
  std::size_t size_ = 0;
};

// What is searched is read as fast as the system gives it, into memory that was used before.
bool SystemPosix::readBytes(const char* core, std::string_view& bytes) {
  bytes = {};
  int opened = open(names_.diskPath(core).c_str(), O_RDONLY | O_CLOEXEC);
  if (opened < 0 && errno == ENOENT) {
    opened = open(names_.find(core).c_str(), O_RDONLY | O_CLOEXEC);
  }
  const OwnedFile file(opened);
  struct stat found = {};
  if (file.get() < 0 || fstat(file.get(), &found) != 0) {
    return false;
  }
  if (found.st_size > kTextFileLimit) {
    errno = EFBIG;
    return false;
  }
  const auto size = static_cast<std::size_t>(found.st_size);
  if (size_ < size) {
    size_ = size + size / 2;
    buffer_.reset(new char[size_]);
  }
  std::size_t done = 0;
  while (done < size) {
    const ssize_t given = read(file.get(), buffer_.get() + done, size - done);
    if (given < 0) {
      return false;
    }
    if (given == 0) {
      break;
    }
    done += static_cast<std::size_t>(given);
  }
  bytes = {buffer_.get(), done};
  return true;
}

}  // namespace

std::unique_ptr<System> openSystem() {
  // Who closes one of the streams does not want a file of the project in its place.
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) < 0) {
      open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
  }
  // A reader that has seen enough must not end what a command is in the middle of writing.
  std::signal(SIGPIPE, SIG_IGN);
  return std::make_unique<SystemPosix>();
}

}  // namespace kesto::cli
