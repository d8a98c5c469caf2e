// One view of a file: the "BCW5Editor" MDI child. The set of editors owns it and
// lets it go after its window is gone. User-interface thread only.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "workbench/editor/editor_window.h"
#include "workbench/editor/open_file.h"
#include "workbench/editor/text_window.h"
#include "workbench/windows/child_place.h"
#include "workbench/windows/mdi_child.h"

namespace workbench {

class EditorChild;

// What an editor asks of those around it.
class EditorChildHost {
 public:
  // False keeps the window open.
  virtual bool mayClose(EditorChild& child) = 0;
  virtual bool saveChild(EditorChild& child) = 0;
  virtual void childGone(EditorChild& child) = 0;
  virtual void childActivated(EditorChild& child) = 0;
  // Caret, insert mode or modified state.
  virtual void childChanged(EditorChild& child) = 0;
  // Its text, whoever did it.
  virtual void childEdited() = 0;
  // False when the file may not be edited; the reason has been shown.
  virtual bool mayEdit(EditorChild& child) = 0;

 protected:
  ~EditorChildHost() = default;
};

class EditorChild final : public EditorWindow,
                          public TextWindowOwner,
                          public DocumentListener,
                          private MdiChild {
 public:
  static bool registerClass(HINSTANCE instance);

  EditorChild(std::shared_ptr<OpenFile> file, const EditorSettings& settings,
              EditorChildHost& host);
  ~EditorChild() override;

  // Returns false when the window cannot be made.
  bool create(HWND mdi_client, HINSTANCE instance, const Area& place);
  OpenFile& openFile() { return *file_; }
  const std::shared_ptr<OpenFile>& sharedFile() const { return file_; }
  TextWindow& textView() { return text_; }
  unsigned int handle() const { return handle_; }
  void setHandle(unsigned int handle) { handle_ = handle; }
  // The number among the views of the file, 0 for an only one.
  void setViewNumber(int number);
  void updateTitle();

  HWND window() override { return childWindow(); }
  HWND textWindow() override { return text_.window(); }
  const std::string& file() override { return file_->path; }
  bool modified() override { return file_->document.modified(); }
  std::string text() override;
  void caret(int* line, int* column) override;
  void setCaret(int line, int column) override;
  void showHit(int line, int column) override;
  TextView view() override;
  void select(int line1, int column1, int line2, int column2) override;
  std::string selection() override { return toAnsi(text_.selection(), file_->document.encoding()); }
  void type(const std::string& text) override;
  bool save() override { return host_.saveChild(*this); }

  void textCaretMoved() override;
  void textFocused() override;
  bool allowEdit() override { return host_.mayEdit(*this); }
  void documentChanged(const DocumentChange&) override { host_.childEdited(); }
  void documentStateChanged() override;

 private:
  // From a line and column that count from 1.
  Place placeOf(int line, int column) const;
  LRESULT handleMessage(UINT message, WPARAM w, LPARAM l) override;
  void windowGone() override { host_.childGone(*this); }
  std::string title() const;

  std::shared_ptr<OpenFile> file_;
  EditorChildHost& host_;
  TextWindow text_;
  std::string shown_title_;
  unsigned int handle_ = 0;
  int number_ = 0;
};

}  // namespace workbench
