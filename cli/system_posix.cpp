#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>

#include "cli/posix/disk_files.h"
#include "cli/posix/disk_listing.h"
#include "cli/posix/disk_reader.h"
#include "cli/system.h"

namespace kesto::cli {
namespace {

class SystemPosix : public System {
 public:
  DirectoryLister& lister() override { return listing_; }
  FileSystem& files() override { return files_; }
  GroupListing& group() override { return listing_; }

  char separator() const override { return '/'; }
  bool isUtf8() const override { return true; }
  std::string corePath(std::string_view given) override { return names_.corePath(given); }
  std::string diskPath(std::string_view core) override { return names_.find(core); }
  bool readBytes(const char* core, std::string_view& bytes) override {
    return names_.onDisk(core, [&](const std::string& path) { return reader_.read(path, bytes); });
  }

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
  DiskReader reader_;
};

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
