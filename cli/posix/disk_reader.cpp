#include "cli/posix/disk_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "addon/foundation/text_file.h"

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

}  // namespace

bool DiskReader::read(const std::string& disk_path, std::string_view& bytes) {
  bytes = {};
  const OwnedFile file(open(disk_path.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat found = {};
  if (file.get() < 0 || fstat(file.get(), &found) != 0) {
    return false;
  }
  if (!S_ISREG(found.st_mode) || found.st_size > kTextFileLimit) {
    errno = S_ISDIR(found.st_mode) ? EISDIR : S_ISREG(found.st_mode) ? EFBIG : EINVAL;
    return false;
  }
  const auto size = static_cast<std::size_t>(found.st_size);
  if (size_ < size) {
    size_ = size + size / 2;
    buffer_.reset(new char[size_]);
  }
  std::size_t done = 0;
  while (done < size) {
    const ssize_t given = ::read(file.get(), buffer_.get() + done, size - done);
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

}  // namespace kesto::cli
