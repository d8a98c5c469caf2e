#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include "addon/foundation/directory_listing.h"
#include "addon/foundation/file_system_win.h"
#include "addon/foundation/full_path.h"
#include "addon/foundation/text_file.h"
#include "addon/groupware/group_files_win.h"
#include "addon/tasks/system_dates.h"
#include "cli/system.h"

namespace kesto::cli {
namespace {

class LookingGroup : public GroupFilesWin {
 public:
  void tellRefused(const char* /*path*/) override {}
};

class SystemWin : public System {
 public:
  DirectoryLister& lister() override { return listing_; }
  FileSystem& files() override { return files_; }
  GroupListing& group() override { return group_; }

  char separator() const override { return '\\'; }
  bool isUtf8() const override { return false; }
  std::string corePath(std::string_view given) override {
    std::string path = fullPath(given);
    if (path.size() > 3 && path.back() == '\\') {
      path.pop_back();
    }
    return path;
  }
  std::string diskPath(std::string_view core) override { return std::string(core); }
  bool readBytes(const char* core, std::string_view& bytes) override {
    const bool read = readFileBytes(core, bytes_);
    bytes = bytes_;
    return read;
  }

  TaskDate utcToday() override { return utcNow(); }
  bool isTerminal(FILE* stream) override { return _isatty(_fileno(stream)) != 0; }
  std::string reason() override;

 private:
  DirectoryListing listing_;
  FileSystemWin files_;
  LookingGroup group_;
  std::string bytes_;
};

std::string SystemWin::reason() {
  char text[300] = "";
  DWORD size = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                              GetLastError(), 0, text, sizeof text, nullptr);
  while (size > 0 && (static_cast<unsigned char>(text[size - 1]) <= ' ' || text[size - 1] == '.')) {
    --size;
  }
  return std::string(text, size);
}

}  // namespace

std::unique_ptr<System> openSystem() {
  for (FILE* const stream : {stdin, stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
  }
  return std::make_unique<SystemWin>();
}

}  // namespace kesto::cli
