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
  int shown_line = 0;
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
  void STDMETHODCALLTYPE ShowLine(int number) override { shown_line = number; }
  IIdeString* STDMETHODCALLTYPE GetLine(int number) override {
    return number >= 1 && number <= static_cast<int>(lines.size())
               ? new Text(lines[static_cast<size_t>(number) - 1])
               : nullptr;
  }
  void STDMETHODCALLTYPE InsertText(IIdeString* text) override {
    lines[static_cast<size_t>(line) - 1].insert(static_cast<size_t>(column) - 1, text->GetText());
  }
  int STDMETHODCALLTYPE SaveModified(IIdeString**) override { return 0; }
};

class StatusLine : public Counted<IStatusLineService> {
 public:
  std::vector<std::string> texts;
  void STDMETHODCALLTYPE SetText(IIdeString* text) override { texts.emplace_back(text->GetText()); }
};

class Make : public Counted<IMakeService> {
 public:
  std::vector<IMakeClient*> clients;
  void STDMETHODCALLTYPE AddClient(IMakeClient* client) override {
    client->AddRef();
    clients.push_back(client);
  }
  void STDMETHODCALLTYPE RemoveClient(IMakeClient* client) override {
    client->Release();
    std::erase(clients, client);
  }
};

class Options : public Counted<IOptionsService> {
 public:
  IIdeString* STDMETHODCALLTYPE GetNodeOption(ProjectNode node, int kind) override {
    return node == 1 && kind == kOptionIncludePath ? new Text("C:\\INC") : nullptr;
  }
  int STDMETHODCALLTYPE AddChapter(IMpdChapter*) override { return 1; }
  int STDMETHODCALLTYPE RemoveChapter(IMpdChapter*) override { return 1; }
};

// What was written into the message window, a line each.
class Messages : public Counted<IMessageService> {
 public:
  std::vector<std::string> log;
  MessageGroup STDMETHODCALLTYPE CreateGroup(IIdeString* name, IIdeString* menu_text) override {
    log.push_back("group " + std::string(name->GetText()) + "|" + menu_text->GetText());
    return 3;
  }
  MessageHandle STDMETHODCALLTYPE AddMessage(MessageGroup group, MessageHandle parent,
                                             IIdeString* text) override {
    log.push_back(std::to_string(group) + "," + std::to_string(parent) + " " + text->GetText());
    return 40 + static_cast<MessageHandle>(log.size());
  }
  MessageHandle STDMETHODCALLTYPE AddLocatedMessage(MessageGroup group, MessageHandle parent,
                                                    IIdeString* text, IIdeString* file, int line,
                                                    short column, int kind) override {
    log.push_back(std::to_string(group) + "," + std::to_string(parent) + " " + text->GetText() +
                  "|" + file->GetText() + "|" + std::to_string(line) + "," +
                  std::to_string(column) + "," + std::to_string(kind));
    return 40 + static_cast<MessageHandle>(log.size());
  }
};

// A file's bytes, and how its stream fails: reads answer negative_reads times with
// a negative count first.
struct StreamSource {
  std::string buffer;  // an editor's text
  std::string disk;    // the file's
  bool in_editor = false;
  int negative_reads = 0;
  std::vector<int> modes;  // as opened
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
  Messages messages;
  StreamSource stream;
  // Services by the first field of their identifier; erase one to take it away.
  std::map<unsigned long, IUnknown*> services;
};

}  // namespace fake
