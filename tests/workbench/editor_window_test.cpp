// Editors as hands use them: keys and the clipboard's messages.
#include <windows.h>

#include <string>

#include "tests/workbench/desk.h"
#include "workbench/windows/clipboard.h"

using namespace workbench;

namespace {

// A key, or text as it is typed.
struct Stroke {
  WPARAM key;
  bool shift, control;
  std::string text;
};

Stroke key(WPARAM code, bool shift = false, bool control = false) {
  return {code, shift, control, ""};
}

Stroke typed(const char* text) {
  return {0, false, false, text};
}

}  // namespace

TEST_CASE("keys edit the text") {
  const struct {
    std::string before;
    Place from, to;  // what is selected, or where the caret stands, from 0
    std::vector<Stroke> strokes;
    std::string after;
    std::string place;
  } cases[] = {
      {"", {}, {}, {typed("ab\x01\x1B"), typed("c")}, "abc", "1:4"},
      {"\t  x", {}, {}, {key(VK_END), typed("\ry")}, "\t  x\r\n\t  y", "2:5"},
      {"  x", {0, 1}, {0, 1}, {typed("\r")}, " \r\n  x", "2:2"},
      {"ab\ncd", {1, 0}, {1, 0}, {key(VK_BACK)}, "abcd", "1:3"},
      {"ab\ncd", {}, {}, {key(VK_END), key(VK_DELETE)}, "abcd", "1:3"},
      {"one two", {}, {}, {key(VK_DELETE, false, true)}, "two", "1:1"},
      {"one two", {}, {}, {key(VK_END), key(VK_BACK, false, true)}, "one ", "1:5"},
      {"abc", {}, {}, {key(VK_INSERT), typed("xy"), key(VK_INSERT), typed("z")}, "xyzc", "1:4"},
      {"ab", {0, 4}, {0, 4}, {typed("c")}, "ab  c", "1:6"},
      {"a\nb\nc", {0, 0}, {2, 0}, {typed("\t")}, "\ta\r\n\tb\r\nc", "3:1"},
      // A vertical move remembers the cell it came from.
      {"abc\na\nabc", {}, {}, {key(VK_END), key(VK_DOWN), key(VK_DOWN)}, "abc\r\na\r\nabc", "3:4"},
      {"  ab", {}, {}, {key(VK_END), key(VK_HOME)}, "  ab", "1:3"},
      {"a\nb", {}, {}, {key(VK_END, false, true), typed("!")}, "a\r\nb!", "2:3"},
      {"one two", {}, {}, {key(VK_RIGHT, true, true), key(VK_DELETE)}, "two", "1:1"},
  };
  Desk desk;
  for (const auto& each : cases) {
    CAPTURE(each.before);
    CAPTURE(each.after);
    desk.setText(each.before);
    // Only the caret may stand beyond a line's end.
    if (each.from == each.to) {
      desk.editor->setCaret(each.from.line + 1, each.from.column + 1);
    } else {
      desk.editor->select(each.from.line + 1, each.from.column + 1, each.to.line + 1,
                          each.to.column + 1);
    }
    for (const Stroke& stroke : each.strokes) {
      desk.keys(stroke.text);
      if (stroke.key != 0) {
        desk.press(stroke.key, stroke.shift, stroke.control);
      }
    }
    CHECK(desk.editor->text() == each.after);
    CHECK(desk.place() == each.place);
  }
}

TEST_CASE(
    "a hit stands a third down, and is marked until the caret leaves it or the text changes") {
  Desk desk;
  ShowWindow(desk.program.application.frame(), SW_SHOWNOACTIVATE);
  SendMessageA(desk.program.application.mdiClient(), WM_MDIMAXIMIZE,
               reinterpret_cast<WPARAM>(desk.editor->window()), 0);
  std::string lines;
  for (int i = 0; i < 300; ++i) {
    lines += "line\n";
  }
  desk.setText(lines);
  REQUIRE(desk.program.application.editFile("a.cpp", 120) == desk.editor);
  const TextView view = desk.editor->view();
  CHECK(view.rows > 6);
  CHECK(view.top == 120 - view.rows / 3);
  CHECK(view.marked == 120);
  CHECK(desk.place() == "120:1");
  desk.press(VK_RIGHT);
  CHECK(desk.editor->view().marked == 120);
  desk.press(VK_DOWN);
  CHECK(desk.editor->view().marked == 0);
  desk.editor->showHit(2, 3);
  CHECK(desk.editor->view().top == 1);
  CHECK(desk.editor->view().marked == 2);
  desk.keys("y");
  CHECK(desk.editor->view().marked == 0);
}

TEST_CASE("an editor opens beside the other windows, and maximized in front of a maximized one") {
  Desk desk;
  Application& application = desk.program.application;
  ShowWindow(application.frame(), SW_SHOWNOACTIVATE);
  application.frameCommand(CM_WINDOW_PROJECT);
  application.frameCommand(CM_WINDOW_MESSAGES);
  EditorWindow* editor = application.editFile("inc\\b.h", 0);
  REQUIRE(editor != nullptr);
  RECT place = {};
  GetWindowRect(editor->window(), &place);
  for (const char* pane : {ideapi::kProjectClass, ideapi::kMessageClass}) {
    RECT other = {};
    RECT common = {};
    GetWindowRect(FindWindowExA(application.mdiClient(), nullptr, pane, nullptr), &other);
    CHECK(IsRectEmpty(&other) == FALSE);
    CHECK(IntersectRect(&common, &place, &other) == FALSE);
  }
  SendMessageA(application.mdiClient(), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(editor->window()),
               0);
  editor = application.editOrStart("new.txt");
  REQUIRE(editor != nullptr);
  CHECK(IsZoomed(editor->window()) != 0);
}

TEST_CASE("the clipboard's messages move the selection") {
  Desk desk;
  desk.setText("one\ntwo\nthree");
  desk.editor->select(1, 3, 2, 2);
  CHECK(desk.editor->selection() == "e\r\nt");
  desk.message(WM_COPY);
  desk.message(WM_CUT);
  CHECK(desk.editor->text() == "onwo\r\nthree");
  desk.editor->setCaret(2, 6);
  desk.message(WM_PASTE);
  CHECK(desk.editor->text() == "onwo\r\nthreee\r\nt");
  desk.editor->select(1, 1, 3, 1);
  desk.message(WM_CLEAR);
  CHECK(desk.editor->text() == "t");
  desk.message(WM_SYSKEYDOWN, VK_BACK, 1 << 29);
  CHECK(desk.editor->text() == "onwo\r\nthreee\r\nt");
}

TEST_CASE("a UTF-8 text is worked in by characters, and handed out in the code page") {
  Desk desk;
  const std::string path = desk.folder.file("a.cpp");
  desk.closeEditor();
  // A character of two bytes, one of three, one of four; a tab between them.
  writeFile(path, "\xEF\xBB\xBF\xC3\xA9\t\xE2\x82\xAC\xF0\x9F\x98\x80\r\nx\n");
  desk.editor = desk.program.application.editFile(path, 1);
  CHECK(desk.editor->text() == "\xE9\t\x80?\r\nx\n");
  desk.message(WM_SETFOCUS);
  desk.press(VK_END);
  CHECK(desk.place() == "1:5");
  desk.press(VK_BACK);
  CHECK(desk.place() == "1:4");
  desk.press(VK_LEFT);
  CHECK(desk.place() == "1:3");
  // Beyond the code page, of one unit and of two.
  for (const wchar_t unit : {0x3A9, 0xD83D, 0xDE00}) {
    SendMessageW(desk.editor->textWindow(), WM_CHAR, static_cast<WPARAM>(unit), 0);
  }
  desk.keys("\xF1");
  CHECK(desk.place() == "1:6");
  desk.press(VK_HOME);
  desk.press(VK_DELETE);
  CHECK(desk.editor->save());
  CHECK(desk.onDisk() == "\xEF\xBB\xBF\t\xCE\xA9\xF0\x9F\x98\x80\xC3\xB1\xE2\x82\xAC\r\nx\n");
  // What is copied is there in the code page, and whole for whoever takes it so.
  desk.editor->select(1, 2, 2, 1);
  desk.message(WM_COPY);
  std::string ansi;
  CHECK(takeFromClipboard(nullptr, &ansi));
  CHECK(ansi == "??\xF1\x80\r\n");
  desk.editor->setCaret(2, 2);
  desk.message(WM_PASTE);
  CHECK(desk.editor->save());
  CHECK(desk.onDisk().ends_with("\r\nx\xCE\xA9\xF0\x9F\x98\x80\xC3\xB1\xE2\x82\xAC\r\n\n"));
}

TEST_CASE("a plain text takes what the code page has as such, and becomes UTF-8 for the rest") {
  Desk desk;
  desk.setText("");
  desk.keys("\xE9");
  SendMessageW(desk.editor->textWindow(), WM_CHAR, 0x3A9, 0);  // no place for it
  CHECK(desk.editor->save());
  CHECK(desk.onDisk() == "\xE9");
  desk.press(VK_BACK);
  SendMessageW(desk.editor->textWindow(), WM_CHAR, 0x3A9, 0);
  desk.keys("\xE9");
  CHECK(desk.editor->save());
  CHECK(desk.onDisk() == "\xCE\xA9\xC3\xA9");
}
