#include "addon/navigation/cross_header.h"

namespace kesto {

namespace {

std::string_view projectOfTitle(std::string_view title) {
  const std::size_t dash = title.find('-');
  const std::size_t start =
      dash == std::string_view::npos ? dash : title.find_first_not_of(' ', dash + 1);
  return start == std::string_view::npos ? std::string_view() : title.substr(start);
}

}  // namespace

std::string crossReferenceHeader(std::string_view frame_title, std::string_view name,
                                 std::string_view date, std::string_view time, int found) {
  std::string header(projectOfTitle(frame_title));
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
