// What the program was started with. Plain values.
#pragma once

#include <string>
#include <vector>

namespace workbench {

struct CommandLine {
  std::string path;       // project, folder or file; empty for none
  std::string addon;      // a DLL; empty for none
  bool own_addon = true;  // nothing was said of one: the Workbench's own
  std::string script;     // a file, or "-" for standard input
};

// [PATH] [--addon DLL] [--script FILE or -]; the arguments come without the
// program's name. Returns false with a sentence for the user.
bool parseCommandLine(const std::vector<std::string>& arguments, CommandLine* line,
                      std::string* reason);

}  // namespace workbench
