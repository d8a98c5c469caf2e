#include "addon/foundation/text_file.h"

#include <algorithm>
#include <cstdio>
#include <memory>

namespace kesto {

namespace {

struct CloseFile {
  void operator()(FILE* file) const { fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

bool writeWith(const char* mode, const char* path, std::string_view text) {
  FILE* const file = fopen(path, mode);
  if (file == nullptr) {
    return false;
  }
  // Of what is written as it closes, a run-time library may hide that it was not.
  const bool written =
      fwrite(text.data(), 1, text.size(), file) == text.size() && fflush(file) == 0;
  return fclose(file) == 0 && written;
}

// The next character of the bytes as writeTextFile leaves it: whether it is that one.
bool takeWritten(std::string_view& bytes, char c) {
#ifdef _WIN32
  if (c == '\n' && bytes.starts_with('\r')) {
    bytes.remove_prefix(1);
  } else if (c == '\n') {
    return false;
  }
#endif
  if (!bytes.starts_with(c)) {
    return false;
  }
  bytes.remove_prefix(1);
  return true;
}

}  // namespace

bool readFileBytes(const char* path, std::string& bytes) {
  bytes.clear();
  const File file(fopen(path, "rb"));
  // A directory that opens has no such end.
  if (file == nullptr || fseek(file.get(), 0, SEEK_END) != 0) {
    return false;
  }
  const long size = ftell(file.get());
  if (size < 0 || size > kTextFileLimit || fseek(file.get(), 0, SEEK_SET) != 0) {
    return false;
  }
  bytes.resize(static_cast<std::size_t>(size));
  bytes.resize(fread(bytes.data(), 1, bytes.size(), file.get()));
  if (ferror(file.get()) != 0) {
    bytes.clear();
    return false;
  }
  return true;
}

bool readTextFile(const char* path, std::string& text) {
  if (!readFileBytes(path, text)) {
    return false;
  }
  takeTextMode(text);
  return true;
}

bool holdsText(const char* path, std::string_view text) {
  std::string bytes;
  if (!readFileBytes(path, bytes)) {
    return false;
  }
  std::string_view rest = bytes;
  return std::all_of(text.begin(), text.end(), [&rest](char c) { return takeWritten(rest, c); }) &&
         rest.empty();
}

bool isUtf16(std::string_view text) {
  return text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF");
}

void takeTextMode(std::string& bytes) {
  bytes.resize(std::min(bytes.size(), bytes.find(kEndOfText)));
  takeLineFeeds(bytes);
}

void takeLineFeeds(std::string& bytes) {
  std::size_t to = bytes.find("\r\n");
  if (to == std::string::npos) {
    return;
  }
  for (std::size_t from = to; from < bytes.size(); ++from) {
    const bool before_end =
        bytes[from] == '\r' && from + 1 < bytes.size() && bytes[from + 1] == '\n';
    if (!before_end) {
      bytes[to] = bytes[from];
      ++to;
    }
  }
  bytes.resize(to);
}

std::string withCarriageReturns(std::string_view text) {
  const auto ends = std::count(text.begin(), text.end(), '\n');
  std::string bytes(text.size() + static_cast<std::size_t>(ends), '\r');
  char* to = bytes.data();
  for (std::size_t end = 0; !text.empty(); text.remove_prefix(end)) {
    end = text.find('\n');
    const bool ended = end != std::string_view::npos;
    end = ended ? end : text.size();
    to = std::copy_n(text.data(), end, to);
    if (ended) {
      *++to = '\n';
      ++to;
      ++end;
    }
  }
  return bytes;
}

bool writeTextFile(const char* path, std::string_view text) {
  return writeWith("w", path, text);
}

bool appendTextFile(const char* path, std::string_view text) {
  return writeWith("a", path, text);
}

bool TextLines::next(std::string_view& line) {
  if (rest_.empty()) {
    return false;
  }
  const std::string_view reach = rest_.substr(0, most_);
  const std::size_t end = reach.find('\n');
  const std::size_t size = end == std::string_view::npos ? reach.size() : end + 1;
  line = reach.substr(0, size);
  if (holds_zeros_) {
    line = line.substr(0, line.find('\0'));
  }
  rest_.remove_prefix(size);
  return true;
}

}  // namespace kesto
