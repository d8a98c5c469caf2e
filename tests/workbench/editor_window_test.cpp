// Editors as hands use them: keys, the clipboard's messages, and the questions
// asked before an edit would be lost.
#include <windows.h>

#include <string>
#include <vector>

#include "doctest.h"
#include "tests/workbench/program_fixture.h"
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

TEST_CASE("a changed file is offered once, and read again where the caret was") {
  Desk desk;
  Application& application = desk.program.application;
  application.programActivated();  // nothing changed, nothing asked
  desk.editor->setCaret(2, 3);
  writeFile(desk.folder.file("a.cpp"), "1\n22222\n3\n");
  {
    Answers answers({IDNO});
    application.programActivated();
    application.programActivated();
  }
  CHECK(desk.editor->text() == kOnDisk);
  writeFile(desk.folder.file("a.cpp"), "1\n22222\n3\n4\n");
  {
    Answers answers({IDYES});
    application.programActivated();
  }
  CHECK(desk.editor->text() == "1\n22222\n3\n4\n");
  CHECK(desk.place() == "2:3");
  CHECK_FALSE(desk.editor->modified());
  DeleteFileA(desk.folder.file("a.cpp").c_str());
  {
    Answers answers({IDOK});
    application.programActivated();
  }
  CHECK(desk.editor->modified());
  CHECK(desk.editor->save());
  CHECK(desk.onDisk() == "1\n22222\n3\n4\n");
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
