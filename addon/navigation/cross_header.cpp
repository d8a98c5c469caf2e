#include "addon/navigation/cross_header.h"

namespace kesto {

std::string crossReferenceHeader(std::string_view project, std::string_view name,
                                 std::string_view date, std::string_view time, int found) {
  std::string header(project);
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
