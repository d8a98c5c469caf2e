// An IDE played by the test: each service can be taken away, and every reference
// that the add-on took is counted.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "ideapi/ide_identifiers.h"
#include "ideapi/ide_interfaces.h"

namespace fake {

// References of all fake objects that are still held.
extern int live_references;

template <class T>
class Counted : public T {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** result) override {
    *result = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override {
    ++live_references;
    return ++references_;
  }
  ULONG STDMETHODCALLTYPE Release() override {
    --live_references;
    if (--references_ == 0 && owned_by_references_) {
      delete this;
      return 0;
    }
    return references_;
  }
  virtual ~Counted() = default;

 protected:
  // An object on the heap starts with its creator's reference.
  void startOwned() {
    owned_by_references_ = true;
    AddRef();
  }

 private:
  ULONG references_ = 0;
  bool owned_by_references_ = false;
};

class Text : public Counted<IIdeString> {
 public:
  explicit Text(std::string text = "") : text_(std::move(text)) { startOwned(); }
  void STDMETHODCALLTYPE SetText(const char* text) override { text_ = text != nullptr ? text : ""; }
  const char* STDMETHODCALLTYPE GetText() override { return text_.c_str(); }

 private:
  std::string text_;
};

// One open editor, as a list of lines.
class Editor : public Counted<IEditorService> {
 public:
  std::string file;
  std::vector<std::string> lines;
  int column = 1;
  int line = 1;
  int open_transactions = 0;
  int transactions = 0;

  EditorView STDMETHODCALLTYPE FindView(IIdeString* name) override {
    return file == name->GetText() ? 7 : 0;
  }
  void STDMETHODCALLTYPE BeginTransaction() override {
    ++open_transactions;
    ++transactions;
  }
  void STDMETHODCALLTYPE EndTransaction() override { --open_transactions; }
  int STDMETHODCALLTYPE MakeCurrent(EditorView view) override { return view == 7; }
  void STDMETHODCALLTYPE GetCursor(int* at_column, int* at_line) override {
    *at_column = column;
    *at_line = line;
  }
  void STDMETHODCALLTYPE SetCursor(int to_column, int to_line) override {
    column = to_column;
    line = to_line;
  }
  void STDMETHODCALLTYPE ShowLine(int) override {}
  IIdeString* STDMETHODCALLTYPE GetLine(int number) override {
    return number >= 1 && number <= static_cast<int>(lines.size())
               ? new Text(lines[static_cast<size_t>(number) - 1])
               : nullptr;
  }
  void STDMETHODCALLTYPE InsertText(IIdeString* text) override {
    if (!refuses) {
      lines[static_cast<size_t>(line) - 1].insert(static_cast<size_t>(column) - 1, text->GetText());
    }
  }
  bool refuses = false;  // as its user answers about a file that is not to be changed
  int STDMETHODCALLTYPE SaveModified(IIdeString** names) override {
    ++savings;
    if (modified.empty()) {
      return 0;
    }
    *names = new Text(modified);
    modified.clear();
    return 1;
  }
  std::string modified;  // names of what there is to save
  int savings = 0;
};

class StatusLine : public Counted<IStatusLineService> {
 public:
  std::vector<std::string> texts;
  void STDMETHODCALLTYPE SetText(IIdeString* text) override { texts.emplace_back(text->GetText()); }
};

// A service that keeps clients, and does nothing else.
template <class Service, class Client>
class Registry : public Counted<Service> {
 public:
  std::vector<Client*> clients;
  void STDMETHODCALLTYPE AddClient(Client* client) override {
    client->AddRef();
    clients.push_back(client);
  }
  void STDMETHODCALLTYPE RemoveClient(Client* client) override {
    std::erase(clients, client);
    client->Release();
  }
};
using Make = Registry<IMakeService, IMakeClient>;
using ProjectSave = Registry<IProjectSaveService, IProjectSaveClient>;

class LoadedProject : public Counted<IProject> {
 public:
  std::string file;
  IIdeString* STDMETHODCALLTYPE GetFileName() override { return new Text(file); }
};

struct Node {
  ProjectNode parent = 0;
  std::string name;
  std::string type;
  std::string description;
  bool removed = false;
};

// The open project: its nodes, numbered from 1, and its options by name.
class Project : public Counted<IProjectService> {
 public:
  LoadedProject project;
  bool loaded = false;
  std::vector<Node> nodes;
  std::map<std::string, std::string> options;
  std::vector<std::string> asked;      // names of options read
  std::vector<std::string> committed;  // names of options written
  std::vector<ProjectNode> opened_alternatively;
  std::vector<IProjectClient*> clients;

  // Tells the clients, as an IDE does.
  void open(const std::string& file);
  void close();

  void STDMETHODCALLTYPE AddClient(IProjectClient* client) override {
    client->AddRef();
    clients.push_back(client);
    if (loaded) {
      client->ProjectOpened(&project);
    }
  }
  void STDMETHODCALLTYPE RemoveClient(IProjectClient* client) override {
    std::erase(clients, client);
    client->Release();
  }
  int STDMETHODCALLTYPE IsProjectLoaded() override { return loaded ? 1 : 0; }
  IIdeString* STDMETHODCALLTYPE GetProjectFile() override { return new Text(project.file); }
  ProjectNode STDMETHODCALLTYPE GetTopNode() override { return after(0, 0); }
  ProjectNode STDMETHODCALLTYPE GetFirstChild(ProjectNode node) override { return after(0, node); }
  ProjectNode STDMETHODCALLTYPE GetNextSibling(ProjectNode node) override {
    return after(node, nodes[node - 1].parent);
  }
  ProjectNode STDMETHODCALLTYPE GetNodeParent(ProjectNode node) override {
    return exists(node) ? nodes[node - 1].parent : 0;
  }
  ProjectNode STDMETHODCALLTYPE FindNode(IIdeString*) override { return 0; }
  IIdeString* STDMETHODCALLTYPE GetNodeName(ProjectNode node) override {
    return exists(node) ? new Text(nodes[node - 1].name) : nullptr;
  }
  IIdeString* STDMETHODCALLTYPE GetNodeType(ProjectNode node) override {
    return exists(node) ? new Text(nodes[node - 1].type) : nullptr;
  }
  IIdeString* STDMETHODCALLTYPE GetNodeDescription(ProjectNode node) override {
    return exists(node) ? new Text(nodes[node - 1].description) : nullptr;
  }
  ProjectNode STDMETHODCALLTYPE AddNode(ProjectNode, IIdeString*, IIdeString*) override {
    return 0;
  }
  int STDMETHODCALLTYPE RemoveNode(ProjectNode node) override {
    nodes[node - 1].removed = true;
    return 1;
  }
  int STDMETHODCALLTYPE OpenNode(ProjectNode node, int alternative) override {
    if (alternative != 0) {
      opened_alternatively.push_back(node);
    }
    return kToolDone;
  }
  int STDMETHODCALLTYPE GetOption(IIdeString* name, const void** data) override;
  OptionHandle STDMETHODCALLTYPE SetOption(IIdeString* name, const void* data, int size) override;
  void STDMETHODCALLTYPE CommitOption(OptionHandle option) override;

 private:
  bool exists(ProjectNode node) const {
    return node >= 1 && node <= nodes.size() && !nodes[node - 1].removed;
  }
  ProjectNode after(ProjectNode node, ProjectNode parent) const;

  std::string pending_name_;
  std::string pending_;
};

// Every name is a tool; what was run is "NAME FILE". The steps by which a tool of an add-on,
// one at a time, came and went are lines.
class Tools : public Counted<IToolService> {
 public:
  std::vector<std::string> runs;
  std::string steps;
  int result = kToolDone;
  ToolHandle STDMETHODCALLTYPE FindTool(IIdeString* name) override {
    name_ = name->GetText();
    return 1;
  }
  int STDMETHODCALLTYPE RunTool(ToolHandle, IIdeString* file) override {
    runs.push_back(name_ + ' ' + file->GetText());
    return result;
  }
  ToolHandle STDMETHODCALLTYPE CreateTool() override {
    steps += "create\n";
    return 2;
  }
  int STDMETHODCALLTYPE SetPosition(ToolHandle, int position) override {
    return step("position " + std::to_string(position));
  }
  int STDMETHODCALLTYPE SetName(ToolHandle, IIdeString* name) override {
    return step(std::string("name ") + name->GetText());
  }
  int STDMETHODCALLTYPE SetFlags(ToolHandle, unsigned int flags) override {
    return step("flags " + std::to_string(flags));
  }
  int STDMETHODCALLTYPE SetDescription(ToolHandle, IIdeString* description) override {
    return step(std::string("description ") + description->GetText());
  }
  int STDMETHODCALLTYPE SetMenuText(ToolHandle, IIdeString* menu_text) override {
    return step(std::string("menu ") + menu_text->GetText());
  }
  int STDMETHODCALLTYPE SetText(ToolHandle, IIdeString* text) override {
    return step(std::string("text ") + text->GetText());
  }
  int STDMETHODCALLTYPE SetImplementor(ToolHandle, IToolImplementor* implementor) override {
    if (implementor != nullptr) {
      implementor->AddRef();
    }
    implementor_ = implementor;
    return step("implementor");
  }
  int STDMETHODCALLTYPE AddTool(ToolHandle) override { return step("add"); }
  int STDMETHODCALLTYPE DeleteTool(ToolHandle) override {
    if (implementor_ != nullptr) {
      implementor_->Release();
      implementor_ = nullptr;
    }
    return step("delete");
  }

 private:
  int step(const std::string& text) {
    steps += text + '\n';
    return 1;
  }

  std::string name_;
  IToolImplementor* implementor_ = nullptr;
};

class Options : public Counted<IOptionsService> {
 public:
  IIdeString* STDMETHODCALLTYPE GetNodeOption(ProjectNode, int) override { return nullptr; }
  int STDMETHODCALLTYPE AddChapter(IMpdChapter*) override { return 1; }
  int STDMETHODCALLTYPE RemoveChapter(IMpdChapter*) override { return 1; }
};

class Messages : public Counted<IMessageService> {
 public:
  std::vector<std::string> log;  // texts
  MessageGroup STDMETHODCALLTYPE CreateGroup(IIdeString*, IIdeString*) override { return 3; }
  MessageHandle STDMETHODCALLTYPE AddMessage(MessageGroup, MessageHandle,
                                             IIdeString* text) override {
    log.emplace_back(text->GetText());
    return 41;
  }
  MessageHandle STDMETHODCALLTYPE AddLocatedMessage(MessageGroup group, MessageHandle parent,
                                                    IIdeString* text, IIdeString*, int, short,
                                                    int) override {
    return AddMessage(group, parent, text);
  }
};

// A file's bytes, and how its stream fails: reads answer negative_reads times with
// a negative count first.
struct StreamSource {
  std::string buffer;  // an editor's text
  std::string disk;    // the file's
  bool in_editor = false;
  int negative_reads = 0;
  std::vector<int> modes;      // as opened
  void (*opened)() = nullptr;  // called meanwhile
};

class Stream : public Counted<IFileStream> {
 public:
  explicit Stream(StreamSource& source) : source_(source) { startOwned(); }
  int STDMETHODCALLTYPE Open(IIdeString*, int mode) override;
  int STDMETHODCALLTYPE GetState() override { return source_.in_editor ? 1 : 0; }
  long STDMETHODCALLTYPE Seek(long offset, int origin) override;
  long STDMETHODCALLTYPE Read(void* buffer, long count) override;
  void STDMETHODCALLTYPE Close() override {}

 private:
  StreamSource& source_;
  std::string text_;
  long position_ = 0;
};

class Ide : public Counted<IIde> {
 public:
  Ide();
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  IIdeString* STDMETHODCALLTYPE CreateIdeString() override { return new Text(); }
  IFileStream* STDMETHODCALLTYPE CreateFileStream() override { return new Stream(stream); }

  Editor editor;
  StatusLine status_line;
  Make make;
  Options options;
  Project project;
  ProjectSave project_save;
  Tools tools;
  Messages messages;
  StreamSource stream;
  // Services by the first field of their identifier; erase one to take it away.
  std::map<unsigned long, IUnknown*> services;
};

}  // namespace fake
