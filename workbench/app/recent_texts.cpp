#include "workbench/app/recent_texts.h"

namespace workbench {
namespace {

constexpr std::size_t kLongestShown = 60;  // characters
constexpr std::size_t kStartShown = 12;    // of a longer one

}  // namespace

bool RecentTexts::add(const std::string& text) {
  if (text.empty() || (!texts_.empty() && texts_.front() == text)) {
    return false;
  }
  remove(text);
  texts_.insert(texts_.begin(), text);
  if (texts_.size() > most_) {
    texts_.pop_back();
  }
  return true;
}

bool RecentTexts::remove(const std::string& text) {
  return std::erase_if(texts_, [&](const std::string& each) { return same_(each, text); }) > 0;
}

std::string menuTextOfPath(std::size_t number, const std::string& path) {
  std::string shown = path;
  if (path.size() > kLongestShown) {
    shown = path.substr(0, kStartShown);
    shown += "...";
    shown += path.substr(path.size() - (kLongestShown - shown.size()));
  }
  std::string result("&");
  result += std::to_string(number);
  result += ' ';
  for (const char c : shown) {
    result += c;
    if (c == '&') {
      result += c;
    }
  }
  return result;
}

}  // namespace workbench
