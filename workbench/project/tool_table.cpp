#include "workbench/project/tool_table.h"

#include <string_view>

#include "workbench/windows/path_text.h"

namespace workbench {

const char* toolForType(const std::string& type) {
  static constexpr struct {
    std::string_view type;  // in lower case
    const char* tool;
  } kTools[] = {
      {".exe", "RunExecutable"},  {".ide", "Project"},          {".res", "EditResource"},
      {".rc", "EditResource"},    {".dlg", "EditResource"},     {".dll", "EditResource"},
      {".bmp", "EditBitmapFile"}, {".rle", "EditBitmapFile"},   {".cur", "EditCursorFile"},
      {".ico", "EditIconFile"},   {"appexpert", "ClassExpert"}, {"appexpertdll", "ClassExpert"},
      {"autodepend", kEditTool},
  };
  const std::string folded = foldCase(type);
  for (const auto& each : kTools) {
    if (folded == each.type) {
      return each.tool;
    }
  }
  return !folded.empty() && folded[0] == '.' && folded != ".lib" ? kEditTool : nullptr;
}

}  // namespace workbench
