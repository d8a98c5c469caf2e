#include "addon/rcgen/version_stamp.h"

#include <array>
#include <cstddef>

#include "addon/foundation/path.h"
#include "addon/foundation/safe_write.h"
#include "addon/foundation/text_file.h"

namespace kesto {

namespace {

// The buffer of a line, its terminating zero included.
constexpr std::size_t kLineBuffer = 255;

constexpr std::string_view kStatement = "FILEVERSION";
constexpr std::size_t kNumbers = 12;  // where the statement's numbers begin
constexpr std::string_view kValue = "   VALUE \"FileVersion\", \"";

using Version = std::array<std::int32_t, 4>;
constexpr std::size_t kBuild = 3;

bool isSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Takes a decimal number off the text, white space and a sign before it allowed; false,
// and the number untouched, when there is none.
bool takeNumber(std::string_view& text, std::int32_t& number) {
  while (!text.empty() && isSpace(text.front())) {
    text.remove_prefix(1);
  }
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  if (text.empty() || !isDigit(text.front())) {
    return false;
  }
  std::uint32_t value = 0;
  for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
    value = value * 10 + static_cast<std::uint32_t>(text.front() - '0');
  }
  number = static_cast<std::int32_t>(negative ? 0 - value : value);
  return true;
}

// The first number that is missing ends the reading; those after it stay as they were.
void readNumbers(std::string_view text, Version& version) {
  for (std::size_t i = 0; i < version.size(); ++i) {
    if (i > 0) {
      if (!text.starts_with(',')) {
        return;
      }
      text.remove_prefix(1);
    }
    if (!takeNumber(text, version[i])) {
      return;
    }
  }
}

void appendNumbers(std::string& text, const Version& version, std::string_view between) {
  for (std::size_t i = 0; i < version.size(); ++i) {
    if (i > 0) {
      text += between;
    }
    text += std::to_string(version[i]);
  }
}

void stampStatement(std::string& stamped, std::string_view numbers, Version& version,
                    std::int32_t& build_number) {
  readNumbers(numbers, version);
  if (build_number <= version[kBuild]) {
    build_number = nextNumber(version[kBuild]);
  }
  version[kBuild] = build_number;
  stamped += "FILEVERSION ";
  appendNumbers(stamped, version, ", ");
}

bool isStatement(std::string_view line) {
  return line.size() > kStatement.size() && line.starts_with(kStatement);
}

bool holdsStatement(std::string_view text) {
  TextLines lines(text, kLineBuffer);
  for (std::string_view line; lines.next(line);) {
    if (isStatement(withoutLineEnd(line))) {
      return true;
    }
  }
  return false;
}

class Stamping {
 public:
  Stamping(const GeneratorHost& host, Folders& folders, std::int32_t& build_number)
      : host_(host), files_(host.files), folders_(folders), build_number_(build_number) {}

  // Each level adds two characters at least, so that kPathLimit bounds the depth.
  void tree(const String& directory) {
    if (!folders_.enter(directory)) {
      return;
    }
    for (const std::string_view name : folders_.directories(directory)) {
      tree(joinPath(directory.view(), name));
    }
    if (!folders_.stopped()) {
      stamp(directory);
    }
  }

 private:
  void stamp(const String& directory) {
    const String file = joinPath(directory.view(), "VERSION.RC");
    const String backup = joinPath(directory.view(), "VERSION.BAK");
    if (!isThere(file, backup)) {
      return;
    }
    const bool first = !files_.status(backup);
    std::string text;
    std::string first_text;
    if (!readStampable(file, text) || (!first && !readStampable(backup, first_text))) {
      return;
    }
    std::int32_t build_number = build_number_;
    SafeFile stamped(files_, file.view());
    stamped.write(stampVersion(first ? text : first_text, build_number));
    if (!stamped.finish()) {
      return;
    }
    const bool foreign = !first && holdsStatement(text) && !holdsStatement(first_text);
    if (first     ? putFirst(stamped, file, backup)
        : foreign ? putKeeping(stamped, file, joinPath(directory.view(), "VERSION.OLD"))
                  : stamped.put()) {
      build_number_ = build_number;
    }
  }

  // A process that was ended while it put a new text may have left the old one aside.
  bool isThere(const String& file, const String& backup) {
    std::optional<FileStatus> status = files_.status(file);
    if (!status && files_.status(newTextPath(file.view())) &&
        (files_.rename(oldTextPath(file.view()), file) || files_.rename(backup, file))) {
      status = files_.status(file);
    }
    return status && !status->is_directory;
  }

  bool readStampable(const String& file, std::string& text) {
    if (!files_.read(file, text)) {
      return false;
    }
    if (isUtf16(text)) {
      host_.notices.notice(host_.notices.shown(file.view()) +
                           " is UTF-16: the version is not stamped");
      return false;
    }
    return true;
  }

  bool putFirst(SafeFile& stamped, const String& file, const String& backup) {
    if (!files_.rename(file, backup)) {
      return false;
    }
    if (!stamped.put()) {
      files_.rename(backup, file);
      return false;
    }
    return true;
  }

  // A backup from elsewhere: what it replaces is nowhere else.
  bool putKeeping(SafeFile& stamped, const String& file, const String& old) {
    const bool kept_before = files_.status(old).has_value();
    if (!kept_before && !keep(file, old)) {
      return false;
    }
    if (!stamped.put()) {
      // The text may be another by the time it is replaced.
      if (!kept_before) {
        files_.remove(old);
      }
      return false;
    }
    host_.notices.notice(
        host_.notices.shown(file.view()) +
        " is made of a VERSION.BAK without a FILEVERSION line; " +
        (kept_before ? "VERSION.OLD keeps an earlier text" : "VERSION.OLD keeps what it held"));
    return true;
  }

  bool keep(const String& file, const String& old) {
    const String copy = newTextPath(old.view());
    if (files_.copy(file, copy) && files_.flush(copy) && files_.rename(copy, old)) {
      return true;
    }
    files_.remove(copy);
    return false;
  }

  const GeneratorHost& host_;
  FileSystem& files_;
  Folders& folders_;
  std::int32_t& build_number_;
};

}  // namespace

std::int32_t nextNumber(std::int32_t number) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(number) + 1);
}

std::string stampVersion(std::string_view text, std::int32_t& build_number) {
  std::string stamped;
  stamped.reserve(text.size() + kLineBuffer);
  Version version = {1, 0, 0, build_number};
  TextLines lines(text, kLineBuffer);
  for (std::string_view line; lines.next(line);) {
    line = withoutLineEnd(line);
    if (isStatement(line)) {
      stampStatement(stamped, line.substr(kNumbers), version, build_number);
    } else if (line.size() > kValue.size() && line.starts_with(kValue)) {
      stamped += kValue;
      appendNumbers(stamped, version, ".");
      stamped += "\\000\\000\"";
    } else {
      stamped += line;
    }
    stamped += '\n';
  }
  return stamped;
}

void stampVersions(const GeneratorHost& host, Folders& folders, const String& directory,
                   std::int32_t& build_number) {
  Stamping(host, folders, build_number).tree(directory);
}

}  // namespace kesto
