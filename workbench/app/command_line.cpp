#include "workbench/app/command_line.h"

#include <cstddef>

namespace workbench {

bool parseCommandLine(const std::vector<std::string>& arguments, CommandLine* line,
                      std::string* reason) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--addon" || argument == "--script") {
      if (i + 1 == arguments.size()) {
        *reason = argument + " needs a file.";
        return false;
      }
      line->own_addon &= argument == "--script";
      (argument == "--addon" ? line->addon : line->script) = arguments[++i];
    } else if (argument.starts_with("--")) {
      *reason = "Unknown option " + argument +
                ".\n\nUsage: workbench [PROJECT, FOLDER or FILE] [--addon DLL] [--script FILE]";
      return false;
    } else if (line->path.empty()) {
      line->path = argument;
    } else {
      *reason = "One project, folder or file at a time: " + argument + " is one too many.";
      return false;
    }
  }
  return true;
}

}  // namespace workbench
