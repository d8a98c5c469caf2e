#include "cli/output.h"

#include <cerrno>
#include <utility>

#include "cli/text_form.h"

namespace kesto::cli {
namespace {

constexpr std::size_t kBuffer = 65536;

constexpr std::string_view kFileColour = "\x1b[35m";
constexpr std::string_view kLineColour = "\x1b[32m";
constexpr std::string_view kNoColour = "\x1b[0m";

}  // namespace

void Output::put(std::string_view bytes) {
  buffer_ += bytes;
  if (buffer_.size() >= kBuffer || (style_.at_once && bytes.ends_with('\n'))) {
    finish();
  }
}

int Output::finish() {
  if (fault_ == 0 && !buffer_.empty()) {
    complaints_.clearProgress();
    errno = 0;
    const bool written = fwrite(buffer_.data(), 1, buffer_.size(), stream_) == buffer_.size() &&
                         fflush(stream_) == 0;
    fault_ = written ? 0 : errno != 0 ? errno : EIO;
  }
  buffer_.clear();
  return fault_ == EPIPE ? 0 : fault_;
}

void Output::add(const Row& row) {
  put("{");
  put(row.json());
  put("}\n");
}

void Output::line(std::string_view shown) {
  put(shown);
  put("\n");
}

void Output::located(std::string_view file, int line, std::string_view text) {
  const std::string number = std::to_string(line);
  if (style_.colour) {
    for (const std::string_view part : {kFileColour, file, kNoColour, std::string_view(":"),
                                        kLineColour, std::string_view(number), kNoColour}) {
      put(part);
    }
  } else {
    put(file);
    put(":");
    put(number);
  }
  put(":");
  put(shown(text));
  put("\n");
}

std::string Output::shown(std::string_view text) const {
  return style_.utf8 ? utf8Of(text) : std::string(text);
}

std::string& Row::begin(std::string_view key) {
  json_ += json_.empty() ? "\"" : ",\"";
  json_ += key;
  json_ += "\":";
  return json_;
}

Row& Row::text(std::string_view key, std::string_view text) {
  begin(key) += jsonOf(utf8Of(text));
  return *this;
}

Row& Row::number(std::string_view key, long value) {
  begin(key) += std::to_string(value);
  return *this;
}

Row& Row::flag(std::string_view key, bool value) {
  begin(key) += value ? "true" : "false";
  return *this;
}

void Complaints::tell(std::string_view file, std::string_view reason) {
  any_ = true;
  print(file, reason);
}

void Complaints::note(std::string_view file, std::string_view text) {
  print(file, text);
}

void Complaints::showProgress(const std::string& text) {
  fprintf(stderr, "\r%s\x1b[K", text.c_str());
  in_progress_ = true;
}

void Complaints::clearProgress() {
  if (std::exchange(in_progress_, false)) {
    fputs("\r\x1b[K", stderr);
  }
}

void Complaints::print(std::string_view file, std::string_view text) {
  std::string line = "kesto-cli: ";
  if (!file.empty()) {
    line += file;
    line += ": ";
  }
  line += text;
  line += '\n';
  if (told_.insert(line).second) {
    clearProgress();
    fwrite(line.data(), 1, line.size(), stderr);
  }
}

}  // namespace kesto::cli
