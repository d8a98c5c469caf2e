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
  program.close();
  std::string leaks;
  for (const Event& event : program.events) {
    if (event.name() == "leak") {
      leaks += *event.find("kind") + "=" + *event.find("count") + " ";
    }
  }
  CHECK(leaks == "file stream=2 make client=1 string=1 ");
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

TEST_CASE_FIXTURE(OpenFolder, "tools") {
  const auto tools = program.held<IToolService>(ideapi::kToolService);
  const auto name = program.text("EditText");
  const auto file = program.text(folder.file("inc\\b.h"));
  CHECK(tools->RunTool(tools->FindTool(name.get()), file.get()) == kToolDone);
  CHECK(program.application.findEditor("inc\\b.h") != nullptr);
  CHECK(*program.last("tool")->find("name") == "EditText");
  CHECK(*program.last("tool")->find("result") == "0");
  CHECK(tools->RunTool(tools->FindTool(name.get()), nullptr) == kToolNotHandled);

  ToolFake tool;
  CHECK(tools->AddTool(name.get(), name.get(), &tool) == 0);
  name->SetText("Deliver");
  const ToolHandle handle = tools->AddTool(name.get(), name.get(), &tool);
  CHECK(tools->FindTool(name.get()) == handle);
  CHECK(tool.references == 2);
  CHECK(tools->RunTool(handle, file.get()) == kToolWarnings);
  SendMessageA(program.application.frame(), WM_COMMAND, 14000 + handle, 0);
  // From the menu it gets the file of the active editor, and none without one.
  CHECK(tool.calls == folder.file("inc\\b.h") + folder.file("inc\\b.h"));
  SendMessageA(program.application.activeEditor()->window(), WM_CLOSE, 0, 0);
  SendMessageA(program.application.frame(), WM_COMMAND, 14000 + handle, 0);
  CHECK(tool.calls == folder.file("inc\\b.h") + folder.file("inc\\b.h") + "(none)");
  tools->RemoveTool(handle);
  CHECK(tool.references == 1);
  CHECK(tools->RunTool(handle, file.get()) == kToolNotHandled);

  // A project's file stands for its folder.
  name->SetText("Project");
  file->SetText(folder.file("whatever.ide").c_str());
  CHECK(tools->RunTool(tools->FindTool(name.get()), file.get()) == kToolDone);
  CHECK(program.application.findEditor(folder.file("inc\\b.h")) == nullptr);

  // The text editor's second run is a second view; within the program it is brought forward.
  name->SetText("EditText");
  file->SetText(folder.file("a.cpp").c_str());
  CHECK(tools->RunTool(tools->FindTool(name.get()), file.get()) == kToolDone);
  CHECK(tools->RunTool(tools->FindTool(name.get()), file.get()) == kToolDone);
  EditorWindow* view = program.application.editFile("a.cpp", 0);
  char title[300] = {};
  GetWindowTextA(view->window(), title, sizeof title);
  CHECK(title == folder.file("a.cpp") + ":2");
}
