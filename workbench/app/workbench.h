// The development environment as the rest of the program sees it: what a menu
// command, a service or a line of a script can ask of it. User-interface thread
// only. Paths are Windows paths in Windows-1252.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace workbench {

class EventLog;
class EditorWindow;
class MessageStore;

// A node of the project's tree, for those who list it.
struct ProjectEntry {
  int depth = 0;  // 0 at the top
  std::string name;
  std::string type;
  std::string description;
};

class Workbench {
 public:
  virtual ~Workbench() = default;

  virtual EventLog& events() = 0;
  // 0 before the frame exists.
  virtual HWND frame() = 0;
  virtual HWND mdiClient() = 0;

  // Opens a project file, a folder as a project, or a source file in an editor. A project that is
  // open is closed first. Returns false when it cannot be opened, or when the
  // user kept an unsaved file; the reason has been shown.
  virtual bool openPath(const std::string& path) = 0;
  // Makes a project of the folder's sources, saves it there, and opens it. False
  // when that cannot be done (the reason has been shown) or the user declined.
  virtual bool newProject(const std::string& folder) = 0;
  // Writes the project's file after its save clients have been told. False
  // without a project, or when it was not written (the reason has been shown).
  virtual bool saveProject() = 0;
  // Returns false when the user kept an unsaved file.
  virtual bool closeProject() = 0;
  virtual bool hasProject() = 0;
  // The project's folder without a trailing separator, else the current directory.
  virtual std::string projectDirectory() = 0;
  // A full path from one that may be relative to projectDirectory().
  virtual std::string resolve(const std::string& path) = 0;

  // The node of that name, or of the path that resolve makes of it; 0 for none.
  virtual unsigned int findNode(const std::string& name) = 0;
  // Edits of the tree, told to the clients of the project. A parent of 0 is the
  // top level. add returns 0 and the others false when it cannot be done.
  virtual unsigned int addNode(unsigned int parent, const std::string& name,
                               const std::string& type) = 0;
  virtual bool renameNode(unsigned int node, const std::string& name) = 0;
  virtual bool removeNode(unsigned int node) = 0;
  virtual bool describeNode(unsigned int node, const std::string& description) = 0;
  // The node's own option of a NodeOptionKind; an empty text takes it away.
  virtual bool setNodePath(unsigned int node, int kind, const std::string& folders) = 0;
  // The project's nodes in tree order.
  virtual std::vector<ProjectEntry> projectEntries() = 0;
  // The bytes that the project keeps under a name. False when there are none, or
  // no project (write: no project).
  virtual bool readOption(const std::string& name, std::string* bytes) = 0;
  virtual bool writeOption(const std::string& name, const std::string& bytes) = 0;
  // The command that make runs; empty for none.
  virtual void setBuildCommand(const std::string& command) = 0;
  // Saves what is modified and starts the build command; its output and its end
  // come later. False when it could not start with it: no project, a make that is
  // running, or a file that was not saved.
  virtual bool startMake() = 0;
  // Tells the make clients that a make started and ended with this MakeResult.
  virtual void make(int result) = 0;

  // The groups of the message window and what is in them.
  virtual const MessageStore& messages() = 0;
  // Shows the place of the message at this position (from 0) of the group that the
  // message window shows. False without such a message, or when its file cannot
  // be shown.
  virtual bool openMessage(int position) = 0;

  // Brings an editor of the file forward or opens one; a line above 0 puts the
  // caret there. Returns null when the file cannot be shown (the reason has been
  // shown).
  virtual EditorWindow* editFile(const std::string& path, int line) = 0;
  // The same for a file that may not exist yet: it starts empty, and its first
  // save creates it.
  virtual EditorWindow* editOrStart(const std::string& path) = 0;
  // The topmost editor showing the file, or null.
  virtual EditorWindow* findEditor(const std::string& path) = 0;
  // The active editor, or null.
  virtual EditorWindow* activeEditor() = 0;

  virtual void setStatus(const std::string& text) = 0;
  virtual std::string status() = 0;

  // The bar of the add-on (the top-level window of class "KADO"), or 0.
  virtual HWND addonBar() = 0;
};

// One view of a file: a "BCW5Editor" MDI child with its "EditWindClass" text
// window. Lines and columns are 1-based, columns count bytes.
class EditorWindow {
 public:
  virtual ~EditorWindow() = default;

  virtual HWND window() = 0;
  virtual HWND textWindow() = 0;
  virtual const std::string& file() = 0;
  virtual bool modified() = 0;
  // The whole text as it would be saved.
  virtual std::string text() = 0;
  virtual void caret(int* line, int* column) = 0;
  virtual void setCaret(int line, int column) = 0;
  // From the first place up to, not including, the second; the caret ends at the second.
  virtual void select(int line1, int column1, int line2, int column2) = 0;
  virtual std::string selection() = 0;
  // Replaces the selection as typing does; a line feed in the text breaks the line.
  virtual void type(const std::string& text) = 0;
  // Returns false when the file could not be written (the reason has been shown).
  virtual bool save() = 0;
};

}  // namespace workbench
