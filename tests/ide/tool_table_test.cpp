#include "addon/ide/tool_table.h"

#include "doctest.h"

TEST_CASE("tools by extension or node type") {
  const kesto::ToolTable table;
  const struct {
    const char* kind;
    const char* tool;
    const char* window_class;
  } rows[] = {{".exe", "RunExecutable", ""},
              {".h", "EditText", "BCW5Editor"},
              {"AutoDepend", "EditText", "BCW5Editor"},
              {".spp", "EditText", "BCW5Editor"},
              {".ide", "Project", ""},
              {"AppExpert", "ClassExpert", ""},
              {"AppExpertDll", "ClassExpert", ""},
              {".rc", "EditResource", "BCW5RWProject"},
              {".res", "EditResource", "BCW5RWProject"},
              {".dll", "EditResource", "BCW5RWProject"},
              {".dlg", "EditResource", "BCW5RWProject"},
              {".bmp", "EditBitmapFile", "BCW5RWBitmap"},
              {".rle", "EditBitmapFile", "BCW5RWBitmap"},
              {".cur", "EditCursorFile", "BCW5RWGroupCursor"},
              {".ico", "EditIconFile", "BCW5RWGroupIcon"},
              // Whole entries in their own case; all else is text.
              {".RC", "EditText", "BCW5Editor"},
              {"AppExpert2", "EditText", "BCW5Editor"},
              {".xyz", "EditText", "BCW5Editor"},
              {"exe", "EditText", "BCW5Editor"},
              {"", "EditText", "BCW5Editor"}};
  for (const auto& row : rows) {
    CAPTURE(row.kind);
    kesto::String window_class("before");
    CHECK(std::string(table.findTool(row.kind, &window_class)) == row.tool);
    CHECK(std::string(window_class.text()) == row.window_class);
  }
  CHECK(table.count() == 8);
}
