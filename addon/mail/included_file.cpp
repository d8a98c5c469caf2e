#include "addon/mail/included_file.h"

#include <algorithm>

#include "addon/foundation/safe_write.h"
#include "addon/foundation/text_file.h"

namespace kesto {

namespace {

constexpr std::size_t kRuleLength = 70;

}  // namespace

IncludedFile::IncludedFile(const char* path) {
  if (path == nullptr || !readFileBytes(path, sent_)) {
    return;
  }
  included_ = true;
  path_ = path;
  const std::size_t end = sent_.find(kEndOfText);
  if (end != std::string::npos) {
    sent_.resize(end + 1);
  }
}

// Lines keep the line feeds of text mode: a note's readers take them, and whoever handed
// over the body has chosen its own.
void IncludedFile::appendTo(std::string& note) const {
  if (!included_) {
    return;
  }
  std::string text = sent_;
  takeTextMode(text);
  std::replace(text.begin(), text.end(), '\0', ' ');
  note += text;
  note.append(kRuleLength, '-');
  note += "\nThat's all folks !\n";
}

void IncludedFile::consume(FileSystem& files) const {
  std::string now;
  if (!included_ || !readFileBytes(path_.c_str(), now) || !now.starts_with(sent_)) {
    return;
  }
  now.erase(0, sent_.size());
  if (now.empty()) {
    files.remove(path_.c_str());
    return;
  }
  takeLineFeeds(now);
  SafeFile rest(files, path_);
  rest.write(now);
  rest.put();
}

}  // namespace kesto
