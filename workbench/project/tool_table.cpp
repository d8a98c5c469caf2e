#include "workbench/project/tool_table.h"

#include <algorithm>
#include <iterator>
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

bool isTextType(const std::string& type) {
  static constexpr std::string_view kOthers[] = {
      ".a",   ".bmp", ".chm", ".com", ".csm", ".cur", ".dll", ".drv", ".exe", ".fnt",
      ".fon", ".gif", ".hlp", ".ico", ".ide", ".jpg", ".lib", ".o",   ".obj", ".ocx",
      ".png", ".res", ".rle", ".tds", ".tlb", ".ttf", ".vxd", ".wav", ".zip"};
  const std::string folded = foldCase(type);
  return !folded.empty() && folded[0] == '.' &&
         std::find(std::begin(kOthers), std::end(kOthers), folded) == std::end(kOthers);
}

}  // namespace workbench
