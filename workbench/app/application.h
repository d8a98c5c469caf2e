// The program: it joins frame, editors and project, and is the Workbench
// that services and scripts see. One object a run; user-interface thread only.
#pragma once

#include <windows.h>

#include <string>

#include "workbench/app/addon_module.h"
#include "workbench/app/find_request.h"
#include "workbench/app/frame.h"
#include "workbench/app/workbench.h"
#include "workbench/editor/disk_store_win.h"
#include "workbench/editor/editor_set.h"
#include "workbench/editor/editor_settings.h"
#include "workbench/events/event_log.h"
#include "workbench/messages/message_window.h"
#include "workbench/project/disk_lister_win.h"
#include "workbench/project/project.h"
#include "workbench/services/ide_root.h"

namespace workbench {

class Application final : public Workbench, public FrameHandler {
 public:
  Application();
  ~Application() override;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  // Loads and starts an add-on; before the frame, as the IDE does. False with a
  // sentence for the user.
  bool startAddon(const std::string& path, std::string* reason);
  // What add-ons are started with; the caller takes no reference.
  IIde* ide() { return &root_; }
  // keep_settings: the user's settings are read now and written when they change.
  bool createFrame(HINSTANCE instance, bool keep_settings);
  // Shows the first source of the project, so that there is something to look at.
  void showFirstSource();
  // Runs until the program ends; returns its exit code.
  int run();

  EventLog& events() override { return events_; }
  HWND frame() override { return frame_.window(); }
  HWND mdiClient() override { return frame_.mdiClient(); }
  bool openPath(const std::string& path) override;
  bool closeProject() override;
  bool hasProject() override { return project_.loaded(); }
  std::string projectDirectory() override;
  std::string resolve(const std::string& path) override;
  unsigned int findNode(const std::string& name) override;
  unsigned int addNode(unsigned int parent, const std::string& name,
                       const std::string& type) override;
  bool renameNode(unsigned int node, const std::string& name) override;
  bool removeNode(unsigned int node) override;
  bool describeNode(unsigned int node, const std::string& description) override;
  bool setNodePath(unsigned int node, int kind, const std::string& folders) override;
  std::vector<ProjectEntry> projectEntries() override;
  bool readOption(const std::string& name, std::string* bytes) override;
  bool writeOption(const std::string& name, const std::string& bytes) override;
  void make(int result) override;
  const MessageStore& messages() override { return messages_; }
  bool openMessage(int position) override;
  EditorWindow* editFile(const std::string& path, int line) override;
  EditorWindow* editOrStart(const std::string& path) override;
  EditorWindow* findEditor(const std::string& path) override;
  EditorWindow* activeEditor() override { return editors_.active(); }
  void setStatus(const std::string& text) override;
  std::string status() override { return frame_.statusBar().text(); }
  HWND addonBar() override { return FindWindowA("KADO", nullptr); }

  void frameCommand(int id) override;
  bool commandEnabled(int id) override;
  bool mayCloseFrame() override { return editors_.askToSaveAll(); }
  void frameClosing() override;
  void programActivated() override { editors_.checkDisk(); }

 private:
  bool openFolder(const std::string& folder);
  void unloadProject();
  void saveAll();
  // Tells that an editor opened or came to a line; null tells nothing.
  EditorChild* announce(EditorChild* child);
  void showTitle();
  void showTools();
  void showEditorState();
  void messagesChanged(const MessageGroupInfo& group, const Message* added);
  bool showPlace(const Message& message);
  void showError(const std::string& text);
  // commands.cpp
  bool fileCommand(int id, EditorChild* child);
  bool editCommand(int id, EditorChild* child);
  bool windowCommand(int id, EditorChild* child);
  bool projectCommand(int id);
  void findNext(bool backward);
  void goToLine(EditorChild& child);
  void openProjectFile();
  void editOptions();
  void showAbout();

  EventLog events_;
  DiskStore store_;
  DiskLister lister_;
  EditorSettings settings_;
  bool keep_settings_ = false;
  EditorSet editors_;
  Project project_;
  MessageStore messages_;
  LiveObjects live_;
  IdeRoot root_;
  Frame frame_;
  MessageWindow message_window_;
  FindRequest find_;
  HINSTANCE instance_ = nullptr;
  bool closed_ = false;
  // Last, so that it is unloaded before anything it may use goes.
  AddonModule addon_;
};

}  // namespace workbench
