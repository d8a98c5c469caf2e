// The component interfaces between an IDE and its add-ons. This header is the
// only place that fixes the order of their methods: a build for another host
// changes it here and nowhere else.
//
// Rules that hold for every method below unless it says otherwise:
// - Thread: the IDE's user-interface thread, both ways.
// - Texts travel as IIdeString objects holding bytes in the ANSI code page.
//   A string passed in stays the caller's, who releases it after the call. A
//   string handed out is a new reference that the receiver releases; null
//   means that there is no such text.
// - An interface pointer handed out carries a reference of the receiver's.
// - File names are full paths, compared without regard to case.
// - Lines and columns are 1-based; a column counts bytes, not screen cells.
// - Methods never throw and never keep a pointer to the caller's buffers.
#pragma once

#include <windows.h>

#include <unknwn.h>

// Handles that the IDE hands out. 0 is never a valid one; a handle whose object
// is gone is answered like 0.
using EditorView = unsigned int;
using ProjectNode = unsigned int;
using OptionHandle = unsigned int;
using ToolHandle = unsigned int;
using MessageGroup = unsigned int;
using MessageHandle = unsigned int;

// A text on its way between the IDE and an add-on.
struct IIdeString : IUnknown {
  // Replaces the text by a copy of the zero-terminated one; null empties it.
  virtual void STDMETHODCALLTYPE SetText(const char* text) = 0;
  // The text, zero-terminated, owned by the object and valid until it changes
  // or goes. Never null.
  virtual const char* STDMETHODCALLTYPE GetText() = 0;
};

// Values of IFileStream::Open's mode.
enum FileStreamMode : int {
  kStreamBuffer = 0,        // only the unsaved text of an open editor
  kStreamBufferOrFile = 1,  // the editor's text when there is one, else the file
  kStreamFile = 2,          // only the file on disk
};

// Values of IFileStream::Seek's origin.
enum FileStreamOrigin : int { kStreamFromStart = 0, kStreamFromHere = 1, kStreamFromEnd = 2 };

// One file's bytes as the IDE sees them, an editor's unsaved text included.
// Positions and counts are bytes.
struct IFileStream : IUnknown {
  // Opens the file at position 0, closing what was open before. Returns 1, or 0
  // when there is nothing to open; the other calls then fail.
  virtual int STDMETHODCALLTYPE Open(IIdeString* file, int mode) = 0;
  // 0 when no editor holds the file that was last asked for, another value when
  // one does. Answers after a failed Open too.
  virtual int STDMETHODCALLTYPE GetState() = 0;
  // Moves and returns the new position, or -1 when nothing is open or the
  // target lies before the start.
  virtual long STDMETHODCALLTYPE Seek(long offset, int origin) = 0;
  // Reads at most count bytes and advances. Returns the count read, 0 at the
  // end, a negative count when nothing is open or the file cannot be read.
  virtual long STDMETHODCALLTYPE Read(void* buffer, long count) = 0;
  virtual void STDMETHODCALLTYPE Close() = 0;
};

// The root: the pointer that the entry of an add-on receives. QueryInterface
// with a service's identifier (ide_identifiers.h) obtains that service; it
// returns 0 on success and leaves null in the result otherwise.
struct IIde : IUnknown {
  // A new empty string, or null when memory is short.
  virtual IIdeString* STDMETHODCALLTYPE CreateIdeString() = 0;
  // A new stream with nothing open, or null when memory is short.
  virtual IFileStream* STDMETHODCALLTYPE CreateFileStream() = 0;
};

// Editor buffers and their views. Operations on "the current buffer" need
// MakeCurrent inside a transaction first and do nothing without one.
struct IEditorService : IUnknown {
  // The view of the file that is topmost among its editors, or 0.
  virtual EditorView STDMETHODCALLTYPE FindView(IIdeString* file) = 0;
  // Transactions group changes into one step of undo and one repaint. They
  // nest; each Begin needs its End.
  virtual void STDMETHODCALLTYPE BeginTransaction() = 0;
  virtual void STDMETHODCALLTYPE EndTransaction() = 0;
  // Aims the operations below at a view. Returns 1, or 0 for a view that is gone.
  virtual int STDMETHODCALLTYPE MakeCurrent(EditorView view) = 0;
  // Both outputs are 0 when there is no current buffer. The column may lie past
  // the end of the line.
  virtual void STDMETHODCALLTYPE GetCursor(int* column, int* line) = 0;
  // A line past the end means the last one, a value below 1 means 1.
  virtual void STDMETHODCALLTYPE SetCursor(int column, int line) = 0;
  // Scrolls the view, without moving the cursor, until the line can be seen.
  virtual void STDMETHODCALLTYPE ShowLine(int line) = 0;
  // The line without its end, or null for a line that does not exist.
  virtual IIdeString* STDMETHODCALLTYPE GetLine(int line) = 0;
  // Inserts at the cursor and leaves the cursor before the new text.
  virtual void STDMETHODCALLTYPE InsertText(IIdeString* text) = 0;
  // Saves every modified buffer that can be saved without asking the user: none without
  // a name, and none whose file another program changed. Returns the number saved and,
  // when it is not 0, their names separated by ", " in *names.
  virtual int STDMETHODCALLTYPE SaveModified(IIdeString** names) = 0;
};

struct IStatusLineService : IUnknown {
  virtual void STDMETHODCALLTYPE SetText(IIdeString* text) = 0;
};

// The message window: groups of messages, each group a tab.
struct IMessageService : IUnknown {
  // A new group; menuText is its name with the "&" of a menu.
  virtual MessageGroup STDMETHODCALLTYPE CreateGroup(IIdeString* name, IIdeString* menu_text) = 0;
  // Adds under the parent, at the top level when it is 0. Returns 0 when the
  // group does not exist.
  virtual MessageHandle STDMETHODCALLTYPE AddMessage(MessageGroup group, MessageHandle parent,
                                                     IIdeString* text) = 0;
  // The same with a place in a source; the kind is kept and shown by the IDE as
  // it sees fit.
  virtual MessageHandle STDMETHODCALLTYPE AddLocatedMessage(MessageGroup group,
                                                            MessageHandle parent, IIdeString* text,
                                                            IIdeString* file, int line,
                                                            short column, int kind) = 0;
};

// Kinds of a node's directory options.
enum NodeOptionKind : int { kOptionIncludePath = 1, kOptionSourcePath = 3 };

// One page of an add-on's chapter in the options dialog. The IDE creates the
// page's dialog from the template and calls Fill when it is shown; on OK it
// calls Validate on every page shown, then Store.
struct IMpdPage : IUnknown {
  virtual IIdeString* STDMETHODCALLTYPE GetTitle() = 0;
  // Module and dialog template id of the page.
  virtual HINSTANCE STDMETHODCALLTYPE GetModule() = 0;
  virtual int STDMETHODCALLTYPE GetDialogId() = 0;
  virtual int STDMETHODCALLTYPE GetKind() = 0;
  virtual IIdeString* STDMETHODCALLTYPE GetDescription() = 0;
  virtual void STDMETHODCALLTYPE Fill(HWND dialog) = 0;
  // A control's notification; returns 1 when the page handled it.
  virtual int STDMETHODCALLTYPE Command(HWND dialog, int control, int notification) = 0;
  // 1 when the user has changed what the page shows since it was filled or stored. Only such
  // a page is asked to validate and to store.
  virtual int STDMETHODCALLTYPE IsChanged() = 0;
  virtual IIdeString* STDMETHODCALLTYPE GetHelpText(int control) = 0;
  virtual void STDMETHODCALLTYPE ShowHelp() = 0;
  // Returns 0 to keep the dialog open; the page has then said why.
  virtual int STDMETHODCALLTYPE Validate(HWND dialog) = 0;
  virtual void STDMETHODCALLTYPE Store(HWND dialog) = 0;
};

struct IMpdChapter : IUnknown {
  virtual int STDMETHODCALLTYPE GetPageCount() = 0;
  // A new reference, or null for a position outside 0 to count - 1.
  virtual IMpdPage* STDMETHODCALLTYPE GetPage(int position) = 0;
};

// The directory options of project nodes, and the chapters of the options dialog.
struct IOptionsService : IUnknown {
  // The text of the node's option, inherited from its parents where it has none
  // of its own; null when none is set.
  virtual IIdeString* STDMETHODCALLTYPE GetNodeOption(ProjectNode node, int kind) = 0;
  // The service keeps a reference until the chapter is removed. Returns 1, or 0
  // for a chapter that is there already (add) or not (remove).
  virtual int STDMETHODCALLTYPE AddChapter(IMpdChapter* chapter) = 0;
  virtual int STDMETHODCALLTYPE RemoveChapter(IMpdChapter* chapter) = 0;
};

// What MakeEnded tells.
enum MakeResult : int { kMakeSucceeded = 0, kMakeFailed = 1, kMakeCancelled = 2, kMakeNotRun = 3 };

struct IMakeClient : IUnknown {
  virtual void STDMETHODCALLTYPE MakeStarted() = 0;
  virtual void STDMETHODCALLTYPE MakeEnded(int result) = 0;
};

struct IMakeService : IUnknown {
  // The service keeps a reference until the client is removed.
  virtual void STDMETHODCALLTYPE AddClient(IMakeClient* client) = 0;
  virtual void STDMETHODCALLTYPE RemoveClient(IMakeClient* client) = 0;
};

// An open project.
struct IProject : IUnknown {
  virtual IIdeString* STDMETHODCALLTYPE GetFileName() = 0;
};

struct IProjectClient : IUnknown {
  virtual void STDMETHODCALLTYPE ProjectOpened(IProject* project) = 0;
  virtual void STDMETHODCALLTYPE ProjectClosed() = 0;
  virtual void STDMETHODCALLTYPE NodeAdded(ProjectNode node) = 0;
  virtual void STDMETHODCALLTYPE NodeRemoved(ProjectNode node) = 0;
  virtual void STDMETHODCALLTYPE NodeOptionsChanged(ProjectNode node) = 0;
  virtual void STDMETHODCALLTYPE NodeChanged(ProjectNode node) = 0;
  virtual void STDMETHODCALLTYPE TargetChanged(ProjectNode node) = 0;
};

struct IProjectSaveClient : IUnknown {
  // The project file is about to be written.
  virtual void STDMETHODCALLTYPE ProjectSaving() = 0;
};

// The open project, its tree of nodes and the options stored in it by name.
struct IProjectService : IUnknown {
  // The service keeps a reference until the client is removed. A client added
  // while a project is open is told of it at once.
  virtual void STDMETHODCALLTYPE AddClient(IProjectClient* client) = 0;
  virtual void STDMETHODCALLTYPE RemoveClient(IProjectClient* client) = 0;
  // 1 while a project is loaded, else 0.
  virtual int STDMETHODCALLTYPE IsProjectLoaded() = 0;
  // Full path of the project file, or null when none is loaded.
  virtual IIdeString* STDMETHODCALLTYPE GetProjectFile() = 0;
  // Tree walking, in the IDE's order of the nodes; 0 ends it.
  virtual ProjectNode STDMETHODCALLTYPE GetTopNode() = 0;
  virtual ProjectNode STDMETHODCALLTYPE GetFirstChild(ProjectNode node) = 0;
  virtual ProjectNode STDMETHODCALLTYPE GetNextSibling(ProjectNode node) = 0;
  // The node above, or 0 for one at the top level.
  virtual ProjectNode STDMETHODCALLTYPE GetNodeParent(ProjectNode node) = 0;
  // The first node, in tree order, whose name is that file, or 0.
  virtual ProjectNode STDMETHODCALLTYPE FindNode(IIdeString* file) = 0;
  // Null for a node that does not exist. A file's type is its extension with
  // the ".", a container's another word.
  virtual IIdeString* STDMETHODCALLTYPE GetNodeName(ProjectNode node) = 0;
  virtual IIdeString* STDMETHODCALLTYPE GetNodeType(ProjectNode node) = 0;
  virtual IIdeString* STDMETHODCALLTYPE GetNodeDescription(ProjectNode node) = 0;
  // Appends under the parent (0: the top level). The name of a file may start at the
  // project's folder; no file is made of it. A null or empty type is that of the name's
  // extension. Returns 0 on failure.
  virtual ProjectNode STDMETHODCALLTYPE AddNode(ProjectNode parent, IIdeString* name,
                                                IIdeString* type) = 0;
  // Removes the node with its children. Returns 1 on success.
  virtual int STDMETHODCALLTYPE RemoveNode(ProjectNode node) = 0;
  // Opens the node's file with the tool of its type. Returns the tool's result.
  virtual int STDMETHODCALLTYPE OpenNode(ProjectNode node, int alternative) = 0;
  // The bytes stored under a name: *data points into the project and is valid
  // until the next call. Returns their size, 0 when absent.
  virtual int STDMETHODCALLTYPE GetOption(IIdeString* name, const void** data) = 0;
  // Prepares a change that CommitOption carries out. Returns 0 on failure.
  virtual OptionHandle STDMETHODCALLTYPE SetOption(IIdeString* name, const void* data,
                                                   int size) = 0;
  virtual void STDMETHODCALLTYPE CommitOption(OptionHandle option) = 0;
};

struct IProjectSaveService : IUnknown {
  // The service keeps a reference until the client is removed.
  virtual void STDMETHODCALLTYPE AddClient(IProjectSaveClient* client) = 0;
  virtual void STDMETHODCALLTYPE RemoveClient(IProjectSaveClient* client) = 0;
};

// Results of running a tool.
enum ToolResult : int {
  kToolNotHandled = -1,
  kToolDone = 0,
  kToolWarnings = 1,
  kToolErrors = 2,
  kToolFatal = 3,
};

// Bits of a tool's flags.
enum ToolFlag : unsigned int {
  kToolInMenu = 0x0100,       // the Tool menu offers it
  kToolWithoutFile = 0x2000,  // it is run without a file, whatever is being worked on
};

// What an add-on supplies to be a tool; it answers for ideapi::kToolImplementor.
struct IToolImplementor : IUnknown {
  // Runs the tool on a file (null when it was chosen without one); a ToolResult.
  virtual int STDMETHODCALLTYPE Run(IIdeString* file) = 0;
};

// The tools of the IDE and those of add-ons. A new tool is put together step by step and
// then added: only from then on it is found, run and offered, and its parts stay as they are.
// Each step returns 1, or 0 for a tool that is gone, has been added or is the IDE's own.
struct IToolService : IUnknown {
  // The tool of that name, or 0.
  virtual ToolHandle STDMETHODCALLTYPE FindTool(IIdeString* name) = 0;
  // A new tool without any of its parts, at position 0; its creator adds or deletes it.
  virtual ToolHandle STDMETHODCALLTYPE CreateTool() = 0;
  // The place in the Tool menu: from 0 on counted from its start, below 0 from its end, where
  // -1 is the last. Tools of one position stand in the order in which they were added.
  virtual int STDMETHODCALLTYPE SetPosition(ToolHandle tool, int position) = 0;
  virtual int STDMETHODCALLTYPE SetName(ToolHandle tool, IIdeString* name) = 0;
  // ToolFlag bits; others mean nothing.
  virtual int STDMETHODCALLTYPE SetFlags(ToolHandle tool, unsigned int flags) = 0;
  // What the status line says while the tool is highlighted in the menu.
  virtual int STDMETHODCALLTYPE SetDescription(ToolHandle tool, IIdeString* description) = 0;
  // The text of the menu's item, "&" included; the name serves when it is empty.
  virtual int STDMETHODCALLTYPE SetMenuText(ToolHandle tool, IIdeString* menu_text) = 0;
  // What stands where a program's tool has its command line.
  virtual int STDMETHODCALLTYPE SetText(ToolHandle tool, IIdeString* text) = 0;
  // The service asks the implementor for ideapi::kToolImplementor, and keeps that reference
  // until the tool is deleted or gets another one. Returns 0 too for one that does not answer.
  virtual int STDMETHODCALLTYPE SetImplementor(ToolHandle tool, IToolImplementor* implementor) = 0;
  // Returns 0, and leaves the tool as it was, when it has no name or no implementor, or when
  // a tool of its name is there.
  virtual int STDMETHODCALLTYPE AddTool(ToolHandle tool) = 0;
  // Returns 1, or 0 for a tool that is gone or is the IDE's own. It may be running.
  virtual int STDMETHODCALLTYPE DeleteTool(ToolHandle tool) = 0;
  // A ToolResult; a tool that is gone answers kToolNotHandled. "EditText" opens one more
  // view of a file that an editor shows already.
  virtual int STDMETHODCALLTYPE RunTool(ToolHandle tool, IIdeString* file) = 0;
};
