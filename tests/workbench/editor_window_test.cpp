// Editors as hands use them: keys, the clipboard's messages, and the questions
// asked before an edit would be lost.
#include <windows.h>

#include <string>
#include <vector>

#include "doctest.h"
#include "tests/workbench/program_fixture.h"
#include "workbench/windows/clipboard.h"
#include "workbench/windows/command_ids.h"

using namespace workbench;

namespace {

// Answers message boxes in order and keeps their texts.
class Answers {
 public:
  explicit Answers(std::vector<int> answers) : answers_(std::move(answers)) {
    current_ = this;
    hook_ = SetWindowsHookExA(WH_CBT, watch, nullptr, GetCurrentThreadId());
  }
  ~Answers() {
    UnhookWindowsHookEx(hook_);
    current_ = nullptr;
    CHECK(texts.size() == answers_.size());
  }
  Answers(const Answers&) = delete;
  Answers& operator=(const Answers&) = delete;

  std::vector<std::string> texts;

 private:
  static LRESULT CALLBACK watch(int code, WPARAM w, LPARAM l) {
    HWND window = reinterpret_cast<HWND>(w);
    HWND label = code == HCBT_ACTIVATE ? GetDlgItem(window, 0xFFFF) : nullptr;
    if (label != nullptr) {
      char text[600] = {};
      GetWindowTextA(label, text, sizeof text);
      current_->texts.push_back(text);
      const std::size_t at = current_->texts.size() - 1;
      EndDialog(window, at < current_->answers_.size() ? current_->answers_[at] : IDCANCEL);
    }
    return CallNextHookEx(nullptr, code, w, l);
  }

  static inline Answers* current_ = nullptr;
  std::vector<int> answers_;
  HHOOK hook_ = nullptr;
};

class Desk {
 public:
  Desk() {
    REQUIRE(program.application.openPath(folder.path()));
    editor = program.application.editFile("a.cpp", 1);
    REQUIRE(editor != nullptr);
  }
  void setText(const std::string& text) {
    message(WM_SETFOCUS);
    editor->select(1, 1, 9999, 9999);
    editor->type(text);
    editor->setCaret(1, 1);
  }
  LRESULT message(UINT id, WPARAM w = 0, LPARAM l = 0) {
    return SendMessageA(editor->textWindow(), id, w, l);
  }
  void keys(const std::string& text) {
    for (const char c : text) {
      message(WM_CHAR, static_cast<unsigned char>(c));
    }
  }
  void press(WPARAM key, bool shift = false, bool control = false) {
    BYTE state[256] = {};
    state[VK_SHIFT] = shift ? 0x80 : 0;
    state[VK_CONTROL] = control ? 0x80 : 0;
    SetKeyboardState(state);
    message(WM_KEYDOWN, key);
    state[VK_SHIFT] = state[VK_CONTROL] = 0;
    SetKeyboardState(state);
  }
  std::string onDisk() {
    std::string bytes;
    DiskStore().read(folder.file("a.cpp"), kLargestText, &bytes);
    return bytes;
  }
  std::string place() {
    int line = 0;
    int column = 0;
    editor->caret(&line, &column);
    std::string result = std::to_string(line);
    result += ':';
    result += std::to_string(column);
    return result;
  }
  bool isOpen() { return program.application.findEditor("a.cpp") != nullptr; }
  void closeEditor() { SendMessageA(editor->window(), WM_CLOSE, 0, 0); }

  ScratchFolder folder;
  Program program;
  EditorWindow* editor = nullptr;
};

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

const std::string kOnDisk = "first\r\nsecond word\r\nthird\r\n";

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

TEST_CASE("closing a modified text asks, and only yes writes") {
  const struct {
    int answer;
    bool open_after;
    bool written;
  } cases[] = {{IDCANCEL, true, false}, {IDNO, false, false}, {IDYES, false, true}};
  for (const auto& each : cases) {
    for (const bool whole_project : {false, true}) {
      CAPTURE(each.answer);
      CAPTURE(whole_project);
      Desk desk;
      desk.keys("x");
      Answers answers({each.answer});
      if (whole_project) {
        CHECK(desk.program.application.closeProject() != each.open_after);
      } else {
        desk.closeEditor();
      }
      CHECK(answers.texts[0] == "Save changes to " + desk.folder.file("a.cpp") + "?");
      CHECK(desk.isOpen() == each.open_after);
      CHECK(desk.onDisk() == (each.written ? "x" + kOnDisk : kOnDisk));
    }
  }
}

TEST_CASE("the end of the session waits for the answer") {
  Desk desk;
  desk.keys("x");
  Answers answers({IDCANCEL, IDNO});
  CHECK(SendMessageA(desk.program.application.frame(), WM_QUERYENDSESSION, 0, 0) == FALSE);
  CHECK(SendMessageA(desk.program.application.frame(), WM_QUERYENDSESSION, 0, 0) == TRUE);
}

TEST_CASE("a file that another program changed is not overwritten unasked") {
  Desk desk;
  desk.keys("x");
  writeFile(desk.folder.file("a.cpp"), "another program's");
  {
    Answers answers({IDNO});
    CHECK_FALSE(desk.editor->save());
  }
  CHECK(desk.onDisk() == "another program's");
  CHECK(desk.editor->modified());
  {
    Answers answers({IDYES});
    CHECK(desk.editor->save());
  }
  CHECK(desk.onDisk() == "x" + kOnDisk);
  CHECK_FALSE(desk.editor->modified());
}

TEST_CASE("what an add-on has saved is saved without a question, or not at all") {
  Desk desk;
  Application& application = desk.program.application;
  auto* service = desk.program.service<IEditorService>(ideapi::kEditorService);
  const auto save = [&] {
    IIdeString* names = nullptr;
    const int count = service->SaveModified(&names);
    if (names != nullptr) {
      names->Release();
    }
    return count;
  };
  Answers none({});
  const std::string header = desk.folder.file("inc\\b.h");
  EditorWindow* other = application.editFile(header, 1);
  desk.keys("x");
  other->type("y");
  SendMessageA(application.frame(), WM_COMMAND, CM_FILE_NEW, 0);
  application.activeEditor()->type("z");
  writeFile(desk.folder.file("a.cpp"), "another program's");
  SetFileAttributesA(header.c_str(), FILE_ATTRIBUTE_READONLY);
  CHECK(save() == 0);
  CHECK(application.status() == "The file was not saved. " + header + " is read-only.");
  SetFileAttributesA(header.c_str(), FILE_ATTRIBUTE_NORMAL);
  CHECK(save() == 1);
  CHECK_FALSE(other->modified());
  CHECK(application.activeEditor()->modified());
  CHECK(desk.editor->modified());
  CHECK(desk.onDisk() == "another program's");
  service->Release();
}

TEST_CASE("a changed file is read again where the caret was, and asks before changes here go") {
  Desk desk;
  Application& application = desk.program.application;
  const std::string path = desk.folder.file("a.cpp");
  application.programActivated();  // nothing changed, nothing said
  CHECK(application.status().empty());
  desk.editor->setCaret(2, 3);
  writeFile(path, "0\nfirst\r\nsecond word\r\nthird\r\n");
  application.timePassed();
  CHECK(application.status() == path + " was read again from the disk");
  CHECK(desk.editor->text() == "0\nfirst\r\nsecond word\r\nthird\r\n");
  CHECK(desk.place() == "3:3");
  CHECK_FALSE(desk.editor->modified());
  desk.message(WM_UNDO);
  CHECK(desk.editor->text() == kOnDisk);
  CHECK(desk.editor->modified());
  // With a change here it asks, once for each change there.
  desk.editor->setCaret(2, 4);
  for (const int answer : {IDNO, IDYES}) {
    writeFile(path, "1\n22222\n" + std::to_string(answer));
    Answers answers({answer});
    application.programActivated();
    application.timePassed();
    CHECK(desk.editor->modified() == (answer == IDNO));
  }
  CHECK(desk.editor->text() == "1\n22222\n" + std::to_string(IDYES));
  CHECK(desk.place() == "2:4");
  // A file that goes may be on its way back; when it stays away, that is told once.
  DeleteFileA(path.c_str());
  application.timePassed();
  writeFile(path, "back");
  application.timePassed();
  CHECK(desk.editor->text() == "back");
  DeleteFileA(path.c_str());
  {
    Answers answers({IDOK});
    application.timePassed();
    application.timePassed();
    application.timePassed();
    application.programActivated();
  }
  CHECK(desk.editor->modified());
  CHECK(desk.editor->save());
  CHECK(desk.onDisk() == "back");
}

TEST_CASE("what an interrupted save left is offered when its file is opened") {
  const struct {
    const char* left;
    std::vector<int> answers;
    bool used;
    bool still_there;
  } cases[] = {
      {"whole", {IDYES}, true, true},
      {"whole", {IDNO}, false, false},
      {"whole", {IDCANCEL}, false, true},
      {"on disk\n", {}, false, false},  // the file has all of it
  };
  for (const auto& each : cases) {
    CAPTURE(each.answers.size());
    Desk desk;
    const std::string left = desk.folder.file("a.cpp.~3");
    desk.closeEditor();
    writeFile(desk.folder.file("a.cpp"), "on disk\n");
    writeFile(left, each.left);
    {
      Answers answers(each.answers);
      desk.editor = desk.program.application.editFile("a.cpp", 1);
    }
    CHECK(desk.editor->text() == (each.used ? "whole" : "on disk\n"));
    CHECK(desk.editor->modified() == each.used);
    CHECK(desk.onDisk() == "on disk\n");
    CHECK(DiskStore().stamp(left).exists == each.still_there);
    if (each.used) {
      desk.message(WM_UNDO);
      CHECK(desk.editor->text() == "on disk\n");
      desk.editor->type("x");
      CHECK(desk.editor->save());
      CHECK_FALSE(DiskStore().stamp(left).exists);
    }
    DeleteFileA(left.c_str());
  }
  Desk desk;
  writeFile(desk.folder.file("gone.cpp.~0.old"), "text");
  Answers answers({IDYES});
  EditorWindow* editor = desk.program.application.editFile("gone.cpp", 1);
  REQUIRE(editor != nullptr);
  CHECK(editor->text() == "text");
  CHECK(editor->modified());
  DeleteFileA(desk.folder.file("gone.cpp.~0.old").c_str());
}

TEST_CASE("a project file is offered what an interrupted save left of it") {
  ScratchFolder folder;
  const std::string head = "Workbench project 1\r\n";
  const std::string left = folder.projectFile() + ".~0";
  writeFile(folder.projectFile(), head + "end\r\n");
  writeFile(left, head + "node \"a.cpp\" \".cpp\"\r\nend\r\n");
  Program program;
  {
    Answers answers({IDYES});
    CHECK(program.application.openPath(folder.path()));
  }
  CHECK(program.application.projectEntries().size() == 1);
  CHECK(DiskStore().stamp(left).exists);
  Answers answers({IDYES});
  CHECK(program.application.closeProject());
  CHECK_FALSE(DiskStore().stamp(left).exists);
}

TEST_CASE("a read-only file says so before it is edited and when it is saved") {
  Desk desk;
  const std::string path = desk.folder.file("a.cpp");
  desk.closeEditor();
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  desk.editor = desk.program.application.editFile(path, 1);
  {
    Answers answers({IDNO});
    desk.keys("x");
  }
  CHECK_FALSE(desk.editor->modified());
  {
    Answers answers({IDYES, IDOK});
    desk.keys("xy");  // asked once
    CHECK_FALSE(desk.editor->save());
    CHECK(answers.texts[1] == "The file was not saved. " + path + " is read-only.");
  }
  CHECK(desk.editor->text() == "xy" + kOnDisk);
  CHECK(desk.editor->modified());
  CHECK(desk.onDisk() == kOnDisk);
}

TEST_CASE("what cannot be opened is told") {
  Desk desk;
  Answers answers({IDOK, IDOK, IDOK});
  CHECK(desk.program.application.editFile("none.cpp", 1) == nullptr);
  CHECK(desk.program.application.editFile("inc", 1) == nullptr);
  CHECK_FALSE(desk.program.application.openPath("none"));
  CHECK(answers.texts[0] == desk.folder.file("none.cpp") + " does not exist.");
  CHECK(answers.texts[1] == desk.folder.file("inc") + " is a folder.");
  CHECK(desk.isOpen());
}
