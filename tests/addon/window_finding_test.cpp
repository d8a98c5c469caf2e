#include "addon/ide/find_window.h"
#include "doctest.h"
#include "tests/addon/window_fixture.h"

using kesto::findChildWindow;

TEST_CASE("windows are found by class and by the file in their title") {
  WindowFixture windows;
  const HWND second = windows.editor("C:\\SRC\\MYFILE.CPP");
  const HWND first = windows.editor("c:\\src\\File.cpp:2 *");
  CHECK(kesto::findFrame() == windows.frame);
  CHECK(kesto::findMdiClient() == windows.client);
  CHECK(findChildWindow(windows.frame, ideapi::kEditorClass, "FILE.CPP") == first);
  CHECK(findChildWindow(windows.frame, nullptr, "MYFILE.CPP") == second);
  CHECK(findChildWindow(windows.frame, ideapi::kEditorClass, "C:\\SRC\\FILE.CPP") == first);
  CHECK(findChildWindow(windows.frame, ideapi::kEditorClass, "LE.CPP") == nullptr);
  CHECK(findChildWindow(windows.frame, ideapi::kEditorClass, "FILE.C") == nullptr);
  CHECK(findChildWindow(windows.frame, "bcw5editor", nullptr) == nullptr);
  CHECK(findChildWindow(windows.client, ideapi::kProjectClass, nullptr) == nullptr);
}

TEST_CASE("the active editor is the document in front, when it is an editor") {
  WindowFixture windows;
  CHECK(kesto::findActiveEditor() == nullptr);
  const HWND editor = windows.editor("A.CPP");
  CHECK(kesto::findActiveEditor() == editor);
  const HWND project = windows.create(ideapi::kProjectClass, "P", WS_CHILD, windows.client);
  SetWindowPos(project, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  CHECK(kesto::findActiveEditor() == nullptr);
}
