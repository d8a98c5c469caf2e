// What an add-on finds behind the root interface, with real windows and files.
#include <windows.h>

#include <string>
#include <vector>

#include "doctest.h"
#include "ideapi/ide_identifiers.h"
#include "ideapi/ide_interfaces.h"
#include "tests/workbench/program_fixture.h"
#include "workbench/windows/path_text.h"

using namespace workbench;

namespace {

std::string take(IIdeString* string) {
  if (string == nullptr) {
    return "(null)";
  }
  const std::string result = string->GetText();
  string->Release();
  return result;
}

// Counts its references and calls; stays on the stack.
template <typename Interface>
class Client : public Interface {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** result) override {
    *result = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }
  ULONG references = 1;
  std::string calls;
};

class MakeClientFake final : public Client<IMakeClient> {
  void STDMETHODCALLTYPE MakeStarted() override { calls += "started "; }
  void STDMETHODCALLTYPE MakeEnded(int result) override {
    calls += "ended" + std::string(1, static_cast<char>('0' + result)) + " ";
  }
};

class ProjectClientFake final : public Client<IProjectClient> {
 public:
  IProjectService* service = nullptr;

 private:
  void STDMETHODCALLTYPE ProjectOpened(IProject* project) override {
    calls += "opened " + take(project->GetFileName()) + " ";
  }
  // The project is still there while its closing is told.
  void STDMETHODCALLTYPE ProjectClosed() override {
    calls += service->IsProjectLoaded() != 0 ? "closed " : "closed too late ";
  }
  void STDMETHODCALLTYPE NodeAdded(ProjectNode) override { calls += "added "; }
  void STDMETHODCALLTYPE NodeRemoved(ProjectNode node) override {
    calls += "removed " + take(service->GetNodeName(node)) + " ";
  }
  void STDMETHODCALLTYPE NodeOptionsChanged(ProjectNode) override { calls += "options "; }
  void STDMETHODCALLTYPE NodeChanged(ProjectNode node) override {
    calls += "changed " + take(service->GetNodeName(node)) + " ";
  }
  void STDMETHODCALLTYPE TargetChanged(ProjectNode) override { calls += "target "; }
};

class ToolFake final : public Client<IToolImplementor> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    if (!IsEqualGUID(id, answers_for)) {
      return E_NOINTERFACE;
    }
    AddRef();
    *result = this;
    return S_OK;
  }
  GUID answers_for = ideapi::kToolImplementor;

 private:
  int STDMETHODCALLTYPE Run(IIdeString* file) override {
    calls += file == nullptr ? "(none)" : file->GetText();
    return kToolWarnings;
  }
};

}  // namespace

TEST_CASE("every service answers for itself, and an unknown one is not there") {
  Program program;
  for (const GUID& id :
       {ideapi::kEditorService, ideapi::kMessageService, ideapi::kStatusLineService,
        ideapi::kOptionsService, ideapi::kMakeService, ideapi::kProjectService,
        ideapi::kProjectSaveService, ideapi::kToolService, ideapi::kUnknown}) {
    void* first = nullptr;
    void* second = nullptr;
    CHECK(program.ide()->QueryInterface(id, &first) == 0);
    REQUIRE(first != nullptr);
    CHECK(static_cast<IUnknown*>(first)->QueryInterface(id, &second) == 0);
    CHECK(first == second);
    CHECK(static_cast<IUnknown*>(first)->Release() == 1);
    CHECK(static_cast<IUnknown*>(second)->Release() == 0);
  }
  void* unknown = &program;
  CHECK(program.ide()->QueryInterface(ideapi::serviceId(0x707240FF), &unknown) == E_NOINTERFACE);
  CHECK(unknown == nullptr);
}

TEST_CASE("what an add-on forgets is told at exit, what it gave back is not") {
  Program program;
  IIdeString* kept = program.text("kept").release();
  program.text("released");
  IFileStream* stream = program.ide()->CreateFileStream();
  stream->AddRef();
  MakeClientFake client;
  program.held<IMakeService>(ideapi::kMakeService)->AddClient(&client);
  program.held<IToolService>(ideapi::kToolService)->CreateTool();
  program.close();
  std::string leaks;
  for (const Event& event : program.events) {
    if (event.name() == "leak") {
      leaks += *event.find("kind") + "=" + *event.find("count") + " ";
    }
  }
  CHECK(leaks == "file stream=2 make client=1 string=1 tool=1 ");
  kept->Release();
  stream->Release();
  stream->Release();
}

TEST_CASE_FIXTURE(OpenFolder, "an editor is found, moved, read and changed in one step of undo") {
  const auto editor = program.held<IEditorService>(ideapi::kEditorService);
  const auto name = program.text(foldCase(folder.file("a.cpp")));
  CHECK(editor->FindView(name.get()) == 0);
  REQUIRE(program.application.editFile("a.cpp", 3) != nullptr);
  const EditorView view = editor->FindView(name.get());
  REQUIRE(view != 0);

  int column = 7;
  int line = 7;
  CHECK(editor->MakeCurrent(view) == 1);
  editor->GetCursor(&column, &line);  // outside a transaction there is no current buffer
  CHECK(column + line == 0);
  CHECK(editor->MakeCurrent(view + 1) == 0);

  editor->BeginTransaction();
  editor->BeginTransaction();
  CHECK(editor->MakeCurrent(view) == 1);
  editor->GetCursor(&column, &line);
  CHECK(column == 1);
  CHECK(line == 3);
  CHECK(take(editor->GetLine(2)) == "second word");
  CHECK(editor->GetLine(5) == nullptr);
  CHECK(editor->GetLine(0) == nullptr);
  editor->SetCursor(8, 2);
  const auto insertion = program.text("new ");
  editor->InsertText(insertion.get());
  editor->EndTransaction();
  editor->GetCursor(&column, &line);  // before the new text
  CHECK(column == 8);
  CHECK(line == 2);
  CHECK(take(editor->GetLine(2)) == "second new word");
  editor->SetCursor(40, 1);
  editor->GetCursor(&column, &line);  // past the end of its line
  CHECK(column == 40);
  editor->SetCursor(1, 99);
  editor->InsertText(insertion.get());
  editor->SetCursor(1, -5);
  editor->GetCursor(&column, &line);
  CHECK(line == 1);
  editor->ShowLine(2);
  editor->EndTransaction();
  CHECK(*program.last("editor")->find("line") == "1");
  CHECK(program.application.findEditor("a.cpp")->view().marked == 1);

  EditorWindow* window = program.application.findEditor("a.cpp");
  CHECK(window->text() == "first\r\nsecond new word\r\nthird\r\nnew ");
  CHECK(window->modified());
  SendMessageA(window->textWindow(), WM_UNDO, 0, 0);
  CHECK(window->text() == "first\r\nsecond word\r\nthird\r\n");
  CHECK_FALSE(window->modified());

  window->setCaret(1, 6);
  window->type("!\n");
  char title[300] = {};
  GetWindowTextA(window->window(), title, sizeof title);
  CHECK(title == folder.file("a.cpp") + " *");
  IIdeString* names = nullptr;
  CHECK(editor->SaveModified(&names) == 1);
  CHECK(take(names) == folder.file("a.cpp"));
  CHECK(editor->SaveModified(&names) == 0);
  CHECK(names == nullptr);
  std::string bytes;
  DiskStore store;
  CHECK(store.read(folder.file("a.cpp"), kLargestText, &bytes) == FileFault::kNone);
  CHECK(bytes == "first!\r\n\r\nsecond word\r\nthird\r\n");
}

TEST_CASE_FIXTURE(OpenFolder, "a stream reads the editor's text before the file's") {
  const Taken<IFileStream> stream(program.ide()->CreateFileStream());
  const auto name = program.text(folder.file("a.cpp"));
  char buffer[64] = {};
  CHECK(stream->Read(buffer, 1) < 0);
  CHECK(stream->Seek(0, kStreamFromStart) == -1);
  CHECK(stream->Open(name.get(), kStreamBuffer) == 0);
  CHECK(stream->GetState() == 0);
  CHECK(stream->Open(name.get(), kStreamBufferOrFile) == 1);
  CHECK(stream->Read(buffer, 5) == 5);
  CHECK(std::string(buffer, 5) == "first");
  CHECK(stream->Seek(-4, kStreamFromEnd) == 23);
  CHECK(stream->Read(buffer, 64) == 4);
  CHECK(stream->Read(buffer, 64) == 0);
  CHECK(stream->Seek(-28, kStreamFromHere) == -1);
  CHECK(stream->Seek(1000, kStreamFromStart) == 1000);
  CHECK(stream->Read(buffer, 64) == 0);

  program.application.editFile("a.cpp", 1)->type("unsaved ");
  for (const int mode : {kStreamBuffer, kStreamBufferOrFile, kStreamFile}) {
    CHECK(stream->Open(name.get(), mode) == 1);
    CHECK(stream->GetState() != 0);
    CHECK(stream->Read(buffer, 5) == 5);
    CHECK(std::string(buffer, 5) == (mode == kStreamFile ? "first" : "unsav"));
  }
  stream->Close();
  CHECK(stream->Read(buffer, 1) < 0);
  for (const std::string& wrong : {folder.path(), folder.file("none.cpp"), std::string()}) {
    name->SetText(wrong.c_str());
    CHECK(stream->Open(name.get(), kStreamBufferOrFile) == 0);
    CHECK(stream->GetState() == 0);
  }
}

TEST_CASE("clients hear of projects and makes until they are removed") {
  ScratchFolder folder;
  Program program;
  ProjectClientFake client;
  MakeClientFake maker;
  const auto service = program.held<IProjectService>(ideapi::kProjectService);
  const auto make = program.held<IMakeService>(ideapi::kMakeService);
  client.service = service.get();
  service->AddClient(&client);
  service->AddClient(&client);
  make->AddClient(&maker);
  CHECK(client.references == 2);
  CHECK(service->GetProjectFile() == nullptr);
  REQUIRE(program.application.openPath(folder.path()));
  const std::string file = take(service->GetProjectFile());
  CHECK(client.calls == "opened " + file + " ");
  CHECK(fileName(file) == std::string(fileName(folder.path())) + ".ide");

  const auto name = program.text("C:\\NEW.CPP");
  const auto type = program.text(".cpp");
  const ProjectNode node = service->AddNode(service->GetTopNode(), name.get(), type.get());
  CHECK(service->FindNode(name.get()) == node);
  CHECK(service->GetNodeParent(node) == service->GetTopNode());
  CHECK(service->GetNodeParent(service->GetTopNode()) == 0);
  program.application.describeNode(node, "new");
  program.application.setNodePath(node, kOptionSourcePath, "src");
  const unsigned int group = program.application.addNode(0, "Group", "Group");
  program.application.renameNode(group, "Renamed");
  CHECK(service->RemoveNode(node) == 1);
  CHECK(service->RemoveNode(node) == 0);
  CHECK(service->GetNodeName(node) == nullptr);
  program.application.make(kMakeFailed);
  CHECK(maker.calls == "started ended1 ");
  make->RemoveClient(&maker);
  program.application.make(kMakeSucceeded);
  CHECK(maker.calls == "started ended1 ");
  CHECK(maker.references == 1);

  name->SetText("Option");
  const void* data = nullptr;
  CHECK(service->GetOption(name.get(), &data) == 0);
  service->CommitOption(service->SetOption(name.get(), "a\0b", 3));
  CHECK(service->GetOption(name.get(), &data) == 3);
  CHECK(std::string(static_cast<const char*>(data), 3) == std::string("a\0b", 3));

  const auto options = program.held<IOptionsService>(ideapi::kOptionsService);
  CHECK(take(options->GetNodeOption(service->GetTopNode(), kOptionIncludePath)) ==
        folder.file("inc"));
  CHECK(options->GetNodeOption(service->GetTopNode(), kOptionSourcePath) == nullptr);

  REQUIRE(program.application.saveProject());
  program.application.closeProject();
  CHECK(client.calls == "opened " + file +
                            " added changed C:\\NEW.CPP options added changed Renamed target "
                            "removed C:\\NEW.CPP closed ");
  service->RemoveClient(&client);
  CHECK(client.references == 1);
  REQUIRE(program.application.openPath(folder.path()));
  ProjectClientFake late;
  late.service = service.get();
  service->AddClient(&late);
  CHECK(late.calls == "opened " + file + " ");
  service->RemoveClient(&late);
}

TEST_CASE_FIXTURE(OpenFolder,
                  "a node of no type has that of its name, which starts at the folder") {
  const auto service = program.held<IProjectService>(ideapi::kProjectService);
  REQUIRE(program.application.openPath(folder.path()));
  const auto type = program.text("");
  const struct {
    const char* name;
    const char* full;
    const char* type;
  } rows[] = {{"sub\\util.h", "sub\\util.h", ".h"},
              {".profile", ".profile", ".profile"},
              {"sub.dir/notes", "sub.dir\\notes", ".txt"},
              {"ends.", "ends.", ".txt"}};
  for (const auto& row : rows) {
    const auto name = program.text(row.name);
    const ProjectNode node = service->AddNode(service->GetTopNode(), name.get(), nullptr);
    CHECK(take(service->GetNodeName(node)) == folder.file(row.full));
    CHECK(take(service->GetNodeType(node)) == row.type);
    CHECK(take(service->GetNodeType(service->AddNode(node, name.get(), type.get()))) == row.type);
  }
}

TEST_CASE_FIXTURE(OpenFolder, "tools") {
  const auto tools = program.held<IToolService>(ideapi::kToolService);
  const auto name = program.text("EditText");
  const auto file = program.text(folder.file("inc\\b.h"));
  CHECK(tools->RunTool(tools->FindTool(name.get()), file.get()) == kToolDone);
  CHECK(program.application.findEditor("inc\\b.h") != nullptr);
  CHECK(*program.last("tool")->find("name") == "EditText");
  CHECK(*program.last("tool")->find("result") == "0");
  CHECK(tools->RunTool(tools->FindTool(name.get()), nullptr) == kToolNotHandled);

  // A project's file stands for its folder.
  name->SetText("Project");
  file->SetText(folder.file("whatever.ide").c_str());
  CHECK(tools->RunTool(tools->FindTool(name.get()), file.get()) == kToolDone);
  CHECK(program.application.findEditor(folder.file("inc\\b.h")) == nullptr);
}

TEST_CASE_FIXTURE(OpenFolder, "a tool of an add-on is put together, added, offered and deleted") {
  const auto tools = program.held<IToolService>(ideapi::kToolService);
  const auto text = program.text("");
  const auto file = program.text(folder.file("a.cpp"));
  ToolFake implementor;
  std::vector<ToolHandle> handles;
  // Counted from the start, then from the end, and by age where the places are equal.
  const struct {
    const char* name;
    int position;
    unsigned int flags;
  } rows[] = {{"Last", -1, 0x100},   {"Deliver", -3, 0x2100}, {"Second", 1, 0x100},
              {"Hidden", 0, 0x2000}, {"First", 0, 0x100},     {"Other", -3, 0x2100}};
  for (const auto& each : rows) {
    const ToolHandle tool = tools->CreateTool();
    handles.push_back(tool);
    CHECK(tools->AddTool(tool) == 0);
    CHECK(tools->SetPosition(tool, each.position) == 1);
    text->SetText(each.name);
    CHECK(tools->SetName(tool, text.get()) == 1);
    CHECK(tools->SetFlags(tool, each.flags) == 1);
    text->SetText((std::string("Does ") + each.name).c_str());
    CHECK(tools->SetDescription(tool, text.get()) == 1);
    text->SetText(each.position == -3 ? (std::string("&") + each.name).c_str() : "");
    CHECK(tools->SetMenuText(tool, text.get()) == 1);
    CHECK(tools->AddTool(tool) == 0);
    implementor.answers_for = ideapi::kToolService;
    CHECK(tools->SetImplementor(tool, &implementor) == 0);
    implementor.answers_for = ideapi::kToolImplementor;
    CHECK(tools->SetImplementor(tool, &implementor) == 1);
    CHECK(tools->SetImplementor(tool, &implementor) == 1);
    CHECK(tools->RunTool(tool, file.get()) == kToolNotHandled);
    text->SetText(each.name);
    CHECK(tools->FindTool(text.get()) == 0);
    CHECK(tools->AddTool(tool) == 1);
    CHECK(tools->FindTool(text.get()) == tool);
    // From now on it stays as it is.
    CHECK(tools->SetName(tool, file.get()) + tools->SetImplementor(tool, nullptr) == 0);
    CHECK(tools->AddTool(tool) == 0);
  }
  CHECK(implementor.references == 1 + 6);
  const HMENU bar = GetMenu(application.frame());
  HMENU menu = nullptr;
  std::string shown;
  for (int i = 0; i < GetMenuItemCount(bar); ++i) {
    const HMENU popup = GetSubMenu(bar, i);
    menu = GetMenuItemID(popup, 0) == 14000 ? popup : menu;
  }
  REQUIRE(menu != nullptr);
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    char item[20] = {};
    GetMenuStringA(menu, static_cast<UINT>(i), item, sizeof item, MF_BYPOSITION);
    shown += item;
    shown += ' ';
  }
  CHECK(shown == "First Second &Deliver &Other Last ");

  // A name that is taken, the IDE's own tools, and a tool that was never added.
  const ToolHandle taken = tools->CreateTool();
  text->SetText("EditText");
  tools->SetName(taken, text.get());
  tools->SetImplementor(taken, &implementor);
  CHECK(tools->AddTool(taken) == 0);
  CHECK(tools->DeleteTool(tools->FindTool(text.get())) == 0);
  CHECK(tools->DeleteTool(taken) == 1);
  CHECK(tools->DeleteTool(taken) == 0);
  CHECK(implementor.references == 1 + 6);

  // From the menu it gets the file in work; what needs none never does, and nothing else runs
  // without one.
  const HWND frame = application.frame();
  SendMessageA(frame, WM_COMMAND, 14000, 0);
  SendMessageA(frame, WM_COMMAND, 14002, 0);
  CHECK(implementor.calls == "(none)");
  application.editFile("a.cpp", 0);
  SendMessageA(frame, WM_COMMAND, 14000, 0);
  SendMessageA(frame, WM_COMMAND, 14002, 0);
  SendMessageA(frame, WM_COMMAND, 14005, 0);
  CHECK(implementor.calls == "(none)" + folder.file("a.cpp") + "(none)");
  CHECK(tools->RunTool(handles[3], file.get()) == kToolWarnings);

  // Its description is there while it is highlighted, then the text before.
  application.setStatus("before");
  SendMessageA(frame, WM_MENUSELECT, MAKEWPARAM(14002, 0), reinterpret_cast<LPARAM>(menu));
  CHECK(application.status() == "Does Deliver");
  SendMessageA(frame, WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
  CHECK(application.status() == "before");

  for (std::size_t i = 0; i + 1 < handles.size(); ++i) {
    CHECK(tools->DeleteTool(handles[i]) == 1);
  }
  CHECK(implementor.references == 2);
  CHECK(tools->RunTool(handles[0], file.get()) == kToolNotHandled);
  // However many came and went, the menu still reaches the ones that are there.
  for (int i = 0; i < 2000; ++i) {
    tools->DeleteTool(tools->CreateTool());
  }
  implementor.calls.clear();
  SendMessageA(frame, WM_COMMAND, 14000, 0);
  CHECK(implementor.calls == "(none)");
  tools->DeleteTool(handles.back());
  CHECK(implementor.references == 1);
}
