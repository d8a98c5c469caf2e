#include "addon/navigation/cross_header.h"

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

std::string_view projectOfTitle(std::string_view title) {
  const std::size_t dash = title.find('-');
  const std::size_t start =
      dash == std::string_view::npos ? dash : title.find_first_not_of(' ', dash + 1);
  return start == std::string_view::npos ? std::string_view() : title.substr(start);
}

}  // namespace

std::string crossReferenceHeader(std::string_view frame_title, std::string_view maximised_title,
                                 std::string_view name, std::string_view date,
                                 std::string_view time, int found) {
  std::string header(projectOfTitle(withoutMaximised(frame_title, maximised_title)));
  header += " : cross reference \"";
  header += name;
  header += "\" ";
  header += " (";
  header += date;
  header += " , ";
  header += time;
  header += ") : ";
  header += std::to_string(found);
  header += " found";
  if (found > 1) {
    header += 's';
  }
  return header;
}

}  // namespace kesto
