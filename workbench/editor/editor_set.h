// All open editors: opening, finding, saving and closing them without ever
// losing an edit unasked. User-interface thread only.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "workbench/editor/editor_child.h"

namespace workbench {

class EditorSet final : public EditorChildHost {
 public:
  EditorSet(FileStore& store, EditorSettings& settings) : store_(store), settings_(settings) {}

  // Both windows must outlive the editors.
  void attach(HWND frame, HWND mdi_client, HINSTANCE instance);
  // Called when the active editor, its caret or its state changes.
  void setChangeListener(std::function<void()> listener) { changed_ = std::move(listener); }

  // Called when a text is edited.
  void setEditListener(std::function<void()> listener) { edited_ = std::move(listener); }
  // Called with what happened without a question.
  void setStatusListener(std::function<void(const std::string&)> told) { told_ = std::move(told); }

  // The topmost editor of the file, or null.
  EditorChild* find(const std::string& path) const;
  // Null for a handle whose editor is gone.
  EditorChild* byHandle(unsigned int handle) const;
  EditorChild* active() const;
  // Brings the file's editor forward or opens one; null when it cannot be read
  // (the reason has been shown).
  EditorChild* open(const std::string& path);
  // The same; a file that does not exist in a folder that does starts empty.
  EditorChild* openOrStart(const std::string& path);
  // A new unnamed text; its proposed path lies in the folder.
  EditorChild* create(const std::string& folder);
  EditorChild* newView(EditorChild& child);
  void bringForward(EditorChild& child);

  // False when the file could not be written or the user chose not to. These ask: the
  // caller keeps the file, and its editors may be gone afterwards.
  bool save(OpenFile& file);
  bool saveAs(OpenFile& file);
  // Gives a file on disk another name, which must be free; its editors follow. False when
  // it could not be done (the reason has been shown).
  bool renameFile(const std::string& from, const std::string& to);
  // Saves every modified file; false when one could not be. Names are appended.
  bool saveAll(std::vector<std::string>* names);
  // Saves the modified files that need no question and no name; asks and tells nothing.
  // What kept one from being written is in *failure, empty for nothing.
  void saveQuietly(std::vector<std::string>* names, std::string* failure);
  // Asks about every modified file; false when the user cancelled or a save failed.
  bool askToSaveAll();
  // Asks, then closes every editor.
  void closeAll();
  // Closes every editor as it is.
  void destroyAll();
  // Reads again what other programs changed, or asks where there are changes here too.
  // Patiently: a file that has just gone may come back.
  void checkDisk(bool patiently);
  // Reads the file again; asks when there are changes, so the caller keeps the file.
  void reload(OpenFile& file);
  void settingsChanged();
  const std::vector<std::unique_ptr<EditorChild>>& all() const { return children_; }

  bool mayClose(EditorChild& child) override;
  bool saveChild(EditorChild& child) override;
  void childGone(EditorChild& child) override;
  void childActivated(EditorChild& child) override;
  void childChanged(EditorChild& child) override;
  void childEdited() override;
  bool mayEdit(EditorChild& child) override;

 private:
  // editor_disk.cpp has what concerns the disk.
  EditorChild* showAnswered(const std::shared_ptr<OpenFile>& file);
  EditorChild* show(const std::shared_ptr<OpenFile>& file);
  Area freePlace() const;
  std::vector<std::shared_ptr<OpenFile>> files() const;
  std::vector<EditorChild*> viewsOf(const OpenFile& file) const;
  // Reads a text that an editor can take; stamps it as it was before.
  FileFault readText(const std::string& path, std::string* bytes, FileStamp* stamp);
  bool offerLeftovers(OpenFile& file);
  void askToReload(OpenFile& file, const char* question);
  void readAgain(OpenFile& file);
  void renumber(const OpenFile& file);
  bool askToSave(OpenFile& file);
  bool changedOnDisk(const OpenFile& file);
  FileFault store(OpenFile& file, const std::string& path);
  bool write(OpenFile& file, const std::string& path);
  void checkOnDisk(OpenFile& file, bool patiently);
  int ask(const std::string& text, UINT buttons);

  FileStore& store_;
  EditorSettings& settings_;
  std::function<void()> changed_;
  std::function<void()> edited_;
  std::function<void(const std::string&)> told_;
  HWND frame_ = nullptr;
  HWND mdi_client_ = nullptr;
  HINSTANCE instance_ = nullptr;
  std::vector<std::unique_ptr<EditorChild>> children_;
  unsigned int last_handle_ = 0;
  bool checking_ = false;
};

}  // namespace workbench
