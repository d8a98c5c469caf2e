// The questions asked before an edit or a file would be lost.
#include <windows.h>

#include <string>
#include <vector>

#include "tests/workbench/desk.h"
#include "workbench/app/settings_store.h"
#include "workbench/windows/command_ids.h"

using namespace workbench;

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

TEST_CASE("the files used last are kept, the latest first, but not by a script") {
  Desk desk;
  Application& application = desk.program.application;
  const std::vector<std::string> before = loadRecent();
  saveRecent({"one", "two", "three"});
  REQUIRE(application.editFile("inc\\b.h", 0) != nullptr);
  REQUIRE(application.editFile("a.cpp", 0) != nullptr);
  CHECK(loadRecent() == std::vector<std::string>{"one", "two", "three"});
  saveRecent({"four"});
  CHECK(loadRecent() == std::vector<std::string>{"four"});
  saveRecent(before);

  // The second is the one before that which is shown.
  application.frameCommand(CM_FIRST_RECENT + 1);
  CHECK(application.activeEditor()->file() == desk.folder.file("inc\\b.h"));
  HMENU menu = GetSubMenu(GetMenu(application.frame()), 0);
  CHECK(GetMenuState(menu, CM_FIRST_RECENT + 1, MF_BYCOMMAND) != static_cast<UINT>(-1));
  CHECK(GetMenuState(menu, CM_FIRST_RECENT + 2, MF_BYCOMMAND) == static_cast<UINT>(-1));
  // One that has gone leaves the list.
  DeleteFileA(desk.folder.file("a.cpp").c_str());
  Answers answers({IDOK});
  application.frameCommand(CM_FIRST_RECENT + 1);
  CHECK(GetMenuState(menu, CM_FIRST_RECENT + 1, MF_BYCOMMAND) == static_cast<UINT>(-1));
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
