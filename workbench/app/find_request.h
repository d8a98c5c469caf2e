// What the user last asked to find. Plain values.
#pragma once

#include <string>

namespace workbench {

struct FindRequest {
  std::string text;
  bool match_case = false;
  bool backward = false;
};

}  // namespace workbench
