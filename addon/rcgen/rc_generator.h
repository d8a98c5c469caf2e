// The resource class generator: at the start of a make, C++ classes for the dialogs of
// the project's resource scripts, and the next build number for its version resources,
// as far as the project has them switched on. One object, created and destroyed by the
// lifecycle; user-interface thread only.
#pragma once

#include <cstdint>
#include <string_view>

namespace kesto {

class RcGenerator {
 public:
  // Both switches are off until a project says otherwise.
  RcGenerator();
  RcGenerator(const RcGenerator&) = delete;
  RcGenerator& operator=(const RcGenerator&) = delete;

  void run(std::string_view project_directory);

 private:
  std::int32_t build_number_ = 0;  // lives as long as the add-on stays loaded
};

extern RcGenerator* rcGenerator;

}  // namespace kesto
