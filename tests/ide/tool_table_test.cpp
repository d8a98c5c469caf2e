#include "addon/ide/tool_table.h"

#include <vector>

#include "doctest.h"

TEST_CASE("tools by extension or node type") {
  const kesto::ToolTable table;
  const struct {
    std::vector<const char*> kinds;
    const char* tool;
    const char* window_class;
  } rows[] = {{{".exe"}, "RunExecutable", ""},
              {{".h", "AutoDepend", ".spp"}, "EditText", "BCW5Editor"},
              {{".ide"}, "Project", ""},
              {{"AppExpert", "AppExpertDll"}, "ClassExpert", ""},
              {{".rc", ".res", ".dll", ".dlg"}, "EditResource", "BCW5RWProject"},
              {{".bmp", ".rle"}, "EditBitmapFile", "BCW5RWBitmap"},
              {{".cur"}, "EditCursorFile", "BCW5RWGroupCursor"},
              {{".ico"}, "EditIconFile", "BCW5RWGroupIcon"},
              // Whole entries in their own case; all else is text.
              {{".RC", "AppExpert2", ".xyz", "exe", ""}, "EditText", "BCW5Editor"}};
  for (const auto& row : rows) {
    for (const char* kind : row.kinds) {
      CAPTURE(kind);
      kesto::String window_class("before");
      CHECK(std::string(table.findTool(kind, &window_class)) == row.tool);
      CHECK(std::string(window_class.text()) == row.window_class);
    }
  }
  CHECK(table.count() == 8);
}
