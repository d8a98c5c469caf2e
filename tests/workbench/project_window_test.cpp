// Projects on the disk and the windows that show them, with real windows and files.
#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "doctest.h"
#include "tests/workbench/program_fixture.h"

using namespace workbench;

namespace {

HWND child(HWND parent, const char* name) {
  return FindWindowExA(parent, nullptr, name, nullptr);
}

// What is posted within the program, such as a window catching up with its list.
void deliverPosted() {
  MSG message = {};
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    DispatchMessageA(&message);
  }
}

std::string bytesOf(const std::string& path) {
  DiskStore store;
  std::string bytes;
  return store.read(path, kLargestText, &bytes) == FileFault::kNone ? bytes : "(none)";
}

}  // namespace

TEST_CASE("a new project is saved at once") {
  ScratchFolder folder;
  Program program;
  REQUIRE(program.application.newProject(folder.path()));
  const std::string bytes = bytesOf(folder.projectFile());
  CHECK(bytes.find("path 1 \"inc\"") != std::string::npos);
  CHECK(bytes.find("node \"inc\\\\b.h\" \".h\"") != std::string::npos);
  CHECK(bytes.find("node \".\" \"Folder\" {") != std::string::npos);
}

TEST_CASE_FIXTURE(OpenFolder, "the project window follows the tree") {
  SendMessageA(application.frame(), WM_COMMAND, ideapi::kCommandShowProject, 0);
  HWND pane = child(application.mdiClient(), ideapi::kProjectClass);
  REQUIRE(pane != nullptr);
  HWND tree = child(pane, WC_TREEVIEWA);
  const auto count = [tree] { return static_cast<int>(TreeView_GetCount(tree)); };
  CHECK(count() == 4);  // the folder, a.cpp, inc and b.h
  const unsigned int group = application.addNode(0, "Extras", "Group");
  application.addNode(group, "x.txt", ".txt");
  CHECK(count() == 6);
  application.removeNode(group);
  CHECK(count() == 4);

  // Shown again it is the same window; closed and shown, another.
  SendMessageA(application.frame(), WM_COMMAND, ideapi::kCommandShowProject, 0);
  CHECK(child(application.mdiClient(), ideapi::kProjectClass) == pane);
  SendMessageA(pane, WM_SYSCOMMAND, SC_CLOSE, 0);
  CHECK(child(application.mdiClient(), ideapi::kProjectClass) == nullptr);
  application.addNode(0, "while closed", "Group");
  SendMessageA(application.frame(), WM_COMMAND, ideapi::kCommandShowProject, 0);
  pane = child(application.mdiClient(), ideapi::kProjectClass);
  CHECK(TreeView_GetCount(child(pane, WC_TREEVIEWA)) == 5);
}

TEST_CASE_FIXTURE(OpenFolder, "the project window comes back as it was left") {
  unsigned int group = 0;
  for (int i = 0; i < 60; ++i) {
    group = application.addNode(0, "Group " + std::to_string(i), "Group");
    application.addNode(group, "x.txt", ".txt");
  }
  SendMessageA(application.frame(), WM_SIZE, SIZE_RESTORED, 0);
  const auto shown = [&] {
    SendMessageA(application.frame(), WM_COMMAND, ideapi::kCommandShowProject, 0);
    deliverPosted();
    return child(child(application.mdiClient(), ideapi::kProjectClass), WC_TREEVIEWA);
  };
  const auto look = [](HWND tree) {
    std::string text;
    for (HTREEITEM item = TreeView_GetRoot(tree); item != nullptr;
         item = TreeView_GetNextSibling(tree, item)) {
      text += TreeView_GetSelection(tree) == item ? "*" : "";
      text += (TreeView_GetItemState(tree, item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0 ? "-" : "+";
    }
    TVITEMA first = {};
    first.mask = TVIF_PARAM | TVIF_HANDLE;
    first.hItem = TreeView_GetFirstVisible(tree);
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&first));
    return text + " from node " + std::to_string(first.lParam);
  };
  const auto reopened = [&](HWND tree) {
    SendMessageA(GetParent(tree), WM_SYSCOMMAND, SC_CLOSE, 0);
    return shown();
  };
  HWND tree = shown();
  HTREEITEM item = TreeView_GetRoot(tree);
  TreeView_Expand(tree, item, TVE_COLLAPSE);
  for (int i = 0; i < 30; ++i) {
    item = TreeView_GetNextSibling(tree, item);
  }
  TreeView_SelectItem(tree, item);
  TreeView_Expand(tree, item, TVE_EXPAND);
  // The selection is out of sight.
  TreeView_EnsureVisible(tree, TreeView_GetRoot(tree));
  const std::string left = look(tree);
  CHECK(left == "+" + std::string(29, '-') + "*-" + std::string(30, '-') + " from node 1");
  tree = reopened(tree);
  CHECK(look(tree) == left);
}

TEST_CASE_FIXTURE(OpenFolder,
                  "the message window shows one group; its first tab and its clearing") {
  const auto service = program.held<IMessageService>(ideapi::kMessageService);
  const auto name = program.text("Uses");
  const auto menu = program.text("&Uses");
  const auto file = program.text(folder.file("a.cpp"));
  const MessageGroup group = service->CreateGroup(name.get(), menu.get());
  // A frame that was never shown has not laid out what is in it.
  SendMessageA(application.frame(), WM_SIZE, SIZE_RESTORED, 0);
  SendMessageA(application.frame(), WM_COMMAND, ideapi::kCommandShowMessages, 0);
  HWND inner =
      child(child(application.mdiClient(), ideapi::kMessageClass), ideapi::kOwlWindowClass);
  HWND tabs = child(inner, ideapi::kNoteTabClass);
  HWND viewer = child(inner, ideapi::kMessageViewerClass);
  REQUIRE(tabs != nullptr);
  REQUIRE(viewer != nullptr);

  const MessageHandle head = service->AddMessage(group, 0, name.get());
  for (int i = 0; i < 10000; ++i) {
    service->AddLocatedMessage(group, head, name.get(), file.get(), 2, 3, 5);
  }
  CHECK(service->AddMessage(group + 1, 0, name.get()) == 0);
  CHECK(*program.last("message")->find("group") == "Uses");
  CHECK(*program.last("message")->find("kind") == "5");
  deliverPosted();
  // A message at the top level raises its group and is selected.
  CHECK(SendMessageA(viewer, LB_GETCOUNT, 0, 0) == 10001);
  CHECK(SendMessageA(viewer, LB_GETCURSEL, 0, 0) == 0);
  SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 11));
  CHECK(SendMessageA(viewer, LB_GETCOUNT, 0, 0) == 0);
  service->AddLocatedMessage(group, head, name.get(), file.get(), 2, 3, 5);
  deliverPosted();
  CHECK(SendMessageA(viewer, LB_GETCOUNT, 0, 0) == 0);
  SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(80, 11));
  CHECK(SendMessageA(viewer, LB_GETCOUNT, 0, 0) == 10002);

  SendMessageA(viewer, LB_SETCURSEL, 9999, 0);
  SendMessageA(viewer, WM_KEYDOWN, VK_RETURN, 0);
  EditorWindow* editor = application.activeEditor();
  REQUIRE(editor != nullptr);
  int line = 0;
  int column = 0;
  editor->caret(&line, &column);
  CHECK(line == 2);
  CHECK(column == 3);

  SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 11));
  SendMessageA(viewer, WM_COMMAND, ideapi::kCommandClearMessages, 0);
  CHECK(application.messages().group(group)->messages.size() == 10002);
  SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(80, 11));
  SendMessageA(viewer, WM_COMMAND, ideapi::kCommandClearMessages, 0);
  CHECK(application.messages().group(group)->messages.empty());
  deliverPosted();
  CHECK(SendMessageA(viewer, LB_GETCOUNT, 0, 0) == 0);
}
