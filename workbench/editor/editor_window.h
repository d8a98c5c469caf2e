// One view of a file, for those who read it or work in it: a "BCW5Editor" MDI
// child with its "EditWindClass" text window. Lines and columns are 1-based,
// columns count characters. Texts are Windows-1252, whatever the file's encoding, with
// "?" for a character beyond it, so that a byte is a character. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

// What of the text the window shows.
struct TextView {
  int top = 0;     // the first line
  int rows = 0;    // how many lines fit
  int marked = 0;  // the line of a hit, 0 for none
};

class EditorWindow {
 public:
  virtual ~EditorWindow() = default;

  virtual HWND window() = 0;
  virtual HWND textWindow() = 0;
  virtual const std::string& file() = 0;
  virtual bool modified() = 0;
  // The whole text, its line ends as they would be saved.
  virtual std::string text() = 0;
  virtual void caret(int* line, int* column) = 0;
  virtual void setCaret(int line, int column) = 0;
  // The same for a place that was looked for: its line is marked, well inside the window.
  virtual void showHit(int line, int column) = 0;
  virtual TextView view() = 0;
  // From the first place up to, not including, the second; the caret ends at the second.
  virtual void select(int line1, int column1, int line2, int column2) = 0;
  virtual std::string selection() = 0;
  // Replaces the selection as typing does; a line feed in the text breaks the line.
  virtual void type(const std::string& text) = 0;
  // Returns false when the file could not be written (the reason has been shown).
  virtual bool save() = 0;
};

}  // namespace workbench
