#include "addon/mail/included_text.h"

#include <algorithm>
#include <utility>

#include "addon/foundation/text_file.h"

namespace kesto {

namespace {

constexpr std::size_t kRuleLength = 70;

}  // namespace

IncludedText::IncludedText(std::string bytes) : read_(std::move(bytes)) {
  const std::size_t end = read_.find(kEndOfText);
  if (end != std::string::npos) {
    read_.resize(end + 1);
  }
}

// Lines keep the single line feeds of text mode; the body's are its writer's.
void IncludedText::appendTo(std::string& note) const {
  std::string text = read_;
  takeTextMode(text);
  std::replace(text.begin(), text.end(), '\0', ' ');
  note += text;
  note.append(kRuleLength, '-');
  note += "\nThat's all folks !\n";
}

std::optional<std::string> IncludedText::restOf(std::string bytes) const {
  if (!bytes.starts_with(read_)) {
    return std::nullopt;
  }
  bytes.erase(0, read_.size());
  takeLineFeeds(bytes);
  return bytes;
}

}  // namespace kesto
