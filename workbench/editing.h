// Editors by the names of their files. The editors belong to the application and
// live until their windows are closed. User-interface thread only.
#pragma once

#include <string>

namespace workbench {

class EditorWindow;

class Editing {
 public:
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

 protected:
  ~Editing() = default;
};

}  // namespace workbench
