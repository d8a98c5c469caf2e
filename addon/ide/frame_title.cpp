#include "addon/ide/frame_title.h"

#include <string>

namespace kesto {
namespace {

// A long title may end before its "]".
std::string_view withoutMaximised(std::string_view title, std::string_view maximised) {
  constexpr std::string_view kOpening = " - [";
  const std::string added = std::string(kOpening) + std::string(maximised) + ']';
  for (std::size_t at = title.find(kOpening); at != std::string_view::npos && !maximised.empty();
       at = title.find(kOpening, at + 1)) {
    if (added.starts_with(title.substr(at))) {
      return title.substr(0, at);
    }
  }
  return title;
}

}  // namespace

std::string_view projectOfTitle(std::string_view frame_title, std::string_view maximised_title) {
  const std::string_view title = withoutMaximised(frame_title, maximised_title);
  const std::size_t dash = title.find('-');
  const std::size_t start =
      dash == std::string_view::npos ? dash : title.find_first_not_of(' ', dash + 1);
  return start == std::string_view::npos ? std::string_view() : title.substr(start);
}

}  // namespace kesto
