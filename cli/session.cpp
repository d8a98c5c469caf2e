#include "cli/session.h"

#include <cerrno>

#include "addon/foundation/path.h"
#include "addon/foundation/text_file.h"

namespace kesto::cli {
namespace {

constexpr auto kFirstWord = std::chrono::seconds(1);
constexpr auto kPeriod = std::chrono::milliseconds(200);

// A path that was given, so that it can be seen.
std::string_view visible(std::string_view given) {
  return given.empty() ? "\"\"" : given;
}

bool isBelow(std::string_view path, std::string_view folder, char separator) {
  return path.size() > folder.size() && path.starts_with(folder) &&
         path[folder.size()] == separator;
}

constexpr std::size_t kPiece = 65536;

bool readAll(FILE* stream, std::string& bytes, std::size_t piece = kPiece) {
  bytes.clear();
  std::size_t given = 0;
  do {
    const std::size_t size = bytes.size();
    bytes.resize(size + piece);
    given = fread(bytes.data() + size, 1, piece, stream);
    bytes.resize(size + given);
    piece = kPiece;
  } while (given > 0 && bytes.size() <= static_cast<std::size_t>(kTextFileLimit));
  if (ferror(stream) == 0 && bytes.size() > static_cast<std::size_t>(kTextFileLimit)) {
    errno = EFBIG;
    return false;
  }
  return ferror(stream) == 0;
}

// Opens it once: a pipe that was closed has lost its writer.
bool readPath(const std::string& path, std::string& bytes) {
  FILE* const file = fopen(path.c_str(), "rb");
  if (file == nullptr) {
    return false;
  }
  const long end = fseek(file, 0, SEEK_END) == 0 ? ftell(file) : 0;
  rewind(file);
  const bool has_size = end > 0 && end <= kTextFileLimit;
  const bool done = readAll(file, bytes, has_size ? static_cast<std::size_t>(end) + 1 : kPiece);
  const int fault = errno;
  fclose(file);
  errno = fault;
  return done;
}

}  // namespace

Session::Session(System& system, Output& output, Complaints& complaints)
    : system_(system), output_(output), complaints_(complaints) {
  showBelow(system.corePath("."), ".");
}

void Session::showBelow(const std::string& core, std::string_view given) {
  if (core.empty()) {
    return;
  }
  std::string disk = system_.diskPath(core);
  while (!disk.empty() && disk.back() == system_.separator()) {
    disk.pop_back();
  }
  std::string prefix(given == "." ? std::string_view() : given);
  if (!prefix.empty() && prefix.back() != '/' && prefix.back() != system_.separator()) {
    prefix += system_.separator();
  }
  shown_.insert(shown_.begin(), {disk, std::string(given), prefix});
  latest_core_.clear();
}

const std::string& Session::shown(std::string_view core) {
  if (core != latest_core_) {
    latest_core_ = core;
    latest_shown_ = system_.diskPath(core);
    for (const Shown& one : shown_) {
      if (latest_shown_ == one.disk) {
        latest_shown_ = one.given;
        break;
      }
      if (isBelow(latest_shown_, one.disk, system_.separator())) {
        latest_shown_.replace(0, one.disk.size() + 1, one.prefix);
        break;
      }
    }
  }
  return latest_shown_;
}

std::string Session::folder(std::string_view given) {
  std::string core = system_.corePath(given);
  const std::optional<FileStatus> status = system_.files().status(core.c_str());
  if (status && status->is_directory) {
    return core;
  }
  complaints_.tell(visible(given), status ? "is no folder" : system_.reason());
  return {};
}

bool Session::readGiven(const std::string& given, std::string& bytes) {
  errno = 0;
  if (given == "-" ? readAll(stdin, bytes) : readPath(given, bytes)) {
    return true;
  }
  const std::string reason = errno != 0 ? system_.reason() : "cannot be read";
  const std::optional<FileStatus> status = system_.files().status(system_.corePath(given).c_str());
  complaints_.tell(visible(given), status && status->is_directory ? "is a folder" : reason);
  return false;
}

void Session::tellFailure(std::string_view core) {
  const std::string reason = system_.reason();
  complaints_.tell(shown(core), reason);
}

void Session::tellUnlisted(const char* core) {
  const std::string reason = system_.reason();
  const std::optional<FileStatus> status = system_.files().status(core);
  if (status && status->is_directory) {
    complaints_.tell(shown(core), reason);
  }
}

int Session::result(bool found) const {
  return complaints_.any() ? kError : found ? kFound : kNothing;
}

Progress::Progress(Session& session)
    : session_(session),
      on_terminal_(session.system().isTerminal(stderr)),
      next_(Clock::now() + kFirstWord) {}

Progress::~Progress() {
  session_.complaints().clearProgress();
}

bool Progress::isTime() {
  if (!on_terminal_ || Clock::now() < next_) {
    return false;
  }
  next_ = Clock::now() + kPeriod;
  return true;
}

bool Progress::goOn(int directories, int files) {
  if (directories >= kDirectoryLimit) {
    session_.complaints().tell({}, "there are too many folders: some are left out");
  }
  if (isTime()) {
    session_.complaints().showProgress(std::to_string(files) + " files in " +
                                       std::to_string(directories) + " folders");
  }
  return session_.output().open();
}

void Progress::tell(int done, int all, const char* of_what) {
  if (isTime()) {
    const std::string of_all = all > 0 ? " of " + std::to_string(all) : std::string();
    session_.complaints().showProgress(std::to_string(done) + of_all + ' ' + of_what);
  }
}

}  // namespace kesto::cli
