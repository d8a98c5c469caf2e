#include "addon/ide/tool_table.h"

#include <cstring>
#include <string>

namespace kesto {

ToolTable* toolTable = nullptr;

namespace {

constexpr char kTextTool[] = "EditText";
constexpr char kTextWindowClass[] = "BCW5Editor";

constexpr struct {
  const char* name;
  const char* extensions;
  const char* window_class;
} kTools[] = {
    {"RunExecutable", ";.exe;", ""},
    {kTextTool, ";.cpp;.c;.h;AutoDepend;.asm;.def;.hpj;.rh;.kb;.txt;.spp;", kTextWindowClass},
    {"Project", ";.ide;", ""},
    {"ClassExpert", ";AppExpert;AppExpertDll;", ""},
    {"EditResource", ";.rc;.res;.dll;.dlg;", "BCW5RWProject"},
    {"EditBitmapFile", ";.bmp;.rle;", "BCW5RWBitmap"},
    {"EditCursorFile", ";.cur;", "BCW5RWGroupCursor"},
    {"EditIconFile", ";.ico;", "BCW5RWGroupIcon"},
};

}  // namespace

bool Tool::handles(const char* extension_or_type) const {
  const std::string entry = ';' + std::string(extension_or_type) + ';';
  return strstr(extensions_.text(), entry.c_str()) != nullptr;
}

ToolTable::ToolTable() {
  for (const auto& tool : kTools) {
    append(new Tool(tool.name, tool.extensions, tool.window_class));
  }
}

const char* ToolTable::findTool(const char* extension_or_type, String* window_class) const {
  for (int i = 0; i < count(); ++i) {
    const Tool& tool = *at(i);
    if (tool.handles(extension_or_type)) {
      if (window_class != nullptr) {
        *window_class = tool.windowClass();
      }
      return tool.name().text();
    }
  }
  if (window_class != nullptr) {
    *window_class = kTextWindowClass;
  }
  return kTextTool;
}

}  // namespace kesto
