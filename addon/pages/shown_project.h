// Which project a page shows the values of: what belongs to a project is grey and empty
// without one, and is stored only into that one. User-interface thread.
#pragma once

#include <string>

#include "addon/ide/current_project.h"
#include "addon/pages/page_exchange.h"

namespace kesto {

class ShownProject {
 public:
  // First thing in a page's exchange().
  void meet(const PageExchange& controls) {
    if (controls.fills()) {
      file_ = isProjectOpen() ? projectFile() : std::string();
    }
  }
  bool isOpen() const { return isProjectOpen() && projectFile() == file_; }
  // No project was open when the page was filled, whatever has been opened since.
  bool isNone() const { return file_.empty(); }

  void flag(PageExchange& controls, int control, const char* help, int& value) const {
    int none = 0;
    controls.flag(control, help, isOpen() ? value : none);
    controls.enable(control, isOpen());
  }
  void text(PageExchange& controls, int control, const char* help, std::string& value,
            std::size_t limit) const {
    std::string none;
    controls.text(control, help, isOpen() ? value : none, limit);
    controls.enable(control, isOpen());
  }

 private:
  std::string file_;
};

}  // namespace kesto
