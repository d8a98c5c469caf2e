// The program: it joins frame, editors and project, and is the Workbench
// that services and scripts see. One object a run; user-interface thread only.
#pragma once

#include <windows.h>

#include <string>

#include "workbench/app/addon_module.h"
#include "workbench/app/find_dialogs.h"
#include "workbench/app/find_request.h"
#include "workbench/app/frame.h"
#include "workbench/editor/disk_store_win.h"
#include "workbench/editor/editor_set.h"
#include "workbench/editor/editor_settings.h"
#include "workbench/events/event_log.h"
#include "workbench/make/make_run.h"
#include "workbench/messages/message_window.h"
#include "workbench/project/disk_lister_win.h"
#include "workbench/project/project.h"
#include "workbench/project/project_window.h"
#include "workbench/services/ide_root.h"
#include "workbench/windows/box_keys.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/path_text.h"
#include "workbench/workbench.h"

namespace workbench {

class Application final : public Workbench,
                          public FrameHandler,
                          public ProjectWindowHost,
                          public MakeHost {
 public:
  Application();
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  // Loads and starts an add-on; before the frame, as the IDE does. False with a
  // sentence for the user.
  bool startAddon(const std::string& path, std::string* reason);
  // What add-ons are started with; the caller takes no reference.
  IIde* ide() { return &root_; }
  // keep_settings: the user's settings are read now and written when they change.
  bool createFrame(HINSTANCE instance, bool keep_settings);
  // As a person's start opens it: with a source in sight, so that there is something to look at.
  void openForPerson(const std::string& path);
  // Runs until the program ends; returns its exit code.
  int run();

  EventLog& events() override { return events_; }
  HWND frame() override { return frame_.window(); }
  HWND mdiClient() override { return frame_.mdiClient(); }
  bool openPath(const std::string& path) override;
  bool newProject(const std::string& folder) override;
  bool saveProject() override;
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
  void setBuildCommand(const std::string& command) override { project_.setBuild(command); }
  void make(int result) override;
  bool startMake() override;
  const MessageStore& messages() override { return messages_; }
  unsigned int shownGroup() override { return message_window_.shownGroup(); }
  int selectedMessage() override { return message_window_.selectedRow(); }
  bool openMessage(int position) override;
  EditorWindow* editFile(const std::string& path, int line) override;
  EditorWindow* editOrStart(const std::string& path) override;
  EditorWindow* findEditor(const std::string& path) override;
  EditorWindow* activeEditor() override { return editors_.active(); }
  void setStatus(const std::string& text) override;
  std::string status() override { return frame_.statusBar().text(); }
  std::string editorState() override { return frame_.statusBar().state(); }
  HWND addonBar() override;

  void openNode(unsigned int node, bool alternative) override;
  void renameFromWindow(unsigned int node, const std::string& name) override;
  void projectWindowCommand(int id) override { frameCommand(id); }
  bool projectCommandEnabled(int id) override { return commandEnabled(id); }

  void makeStarted(const std::string& command) override;
  void makeGoesOn(int seconds) override;
  void makeEnded(int result) override;

  void frameCommand(int id) override;
  bool commandEnabled(int id) override;
  void commandHighlighted(int id) override;
  bool mayCloseFrame() override {
    return mayStopMake() && editors_.askToSaveAll() && askToSaveProject();
  }
  void frameClosing() override;
  void programActivated() override { editors_.checkDisk(false); }
  void timePassed() override { editors_.checkDisk(true); }
  // A script's run is nobody else's.
  bool mayTakePath() override { return keep_settings_; }
  void takePath(const std::string& path) override;
  HWND modelessDialog() override { return make_.window(); }

 private:
  void showFirstSource();
  bool openFolder(const std::string& folder);
  bool openProjectFile(const std::string& file);
  // False when it cannot be read (the reason has been shown). *leftover: where it was read
  // from instead, else empty.
  bool readProject(const std::string& file, ProjectTree* tree, FileStamp* stamp,
                   std::string* leftover);
  // The sources of the folder as a project of this file, fileFor's when empty.
  bool openWalked(const std::string& folder, const std::string& file);
  bool walk(const std::string& folder, FolderContent* content);
  void projectOpened(const FileStamp& stamp);
  // Asks when the project has changed; false when the user cancelled or the save failed.
  bool askToSaveProject();
  int ask(const std::string& text, UINT buttons);
  void unloadProject();
  void saveAll();
  // Tells that an editor opened or came to a line; null tells nothing.
  EditorChild* announce(EditorChild* child);
  // The file or project was worked with.
  void noteRecent(const std::string& path);
  void openRecent(std::size_t position);
  void showRecent();
  void showTitle();
  void showEditorState();
  void messagesChanged(const MessageGroupInfo& group, const Message* added);
  bool showPlace(const Message& message);
  // The next or the former message that has a place, of the group shown.
  void showOtherMessage(bool next);
  void showError(const std::string& text);
  // commands.cpp
  bool fileCommand(int id, EditorChild* child);
  void editCommand(int id, EditorChild* child);
  bool windowCommand(int id, EditorChild* child);
  bool projectCommand(int id);
  bool nodeCommand(int id);
  // Where a new target or group of that type goes.
  unsigned int parentForNew(const std::string& type) const;
  bool isDelivery(unsigned int node) const;
  void addFiles();
  void addContainer();
  void removeSelected();
  void editSelected();
  // Offers to rename the node's file on the disk as well.
  void renameAsked(unsigned int node, const std::string& name);
  void editBuild();
  // The project's, as people call it.
  std::string projectName();
  // Asks when a make is running; false leaves it so.
  bool mayStopMake();
  // tool_commands.cpp
  void showTools();
  // The tool of a menu command, or null.
  const ToolService::MenuTool* toolOf(int id) const;
  // The file that is being worked on: that of the active editor, or the one selected in the
  // project window while that is active; empty for none.
  std::string fileInWork();
  bool toolEnabled(const ToolService::MenuTool& tool);
  bool toolCommand(int id);
  // find_commands.cpp
  void findCommand(int id, EditorChild& child);
  void findNext(bool backward);
  void replace(unsigned int editor, ReplaceWhat what);
  void goToLine(EditorChild& child);
  void openProjectFile();
  void editOptions();
  void showAbout();

  EventLog events_;
  BoxKeys box_keys_;
  DiskStore store_;
  DiskLister lister_;
  EditorSettings settings_;
  bool keep_settings_ = false;
  EditorSet editors_;
  Project project_;
  FileStamp project_stamp_;       // its file as it was last read or written
  std::string project_leftover_;  // the file that its content was taken from instead
  MessageStore messages_;
  LiveObjects live_;
  IdeRoot root_;
  Frame frame_;
  std::vector<ToolService::MenuTool> menu_tools_;
  MessageWindow message_window_;
  ProjectWindow project_window_;
  MakeRun make_;
  FindRequest find_;
  RecentTexts recent_{CM_LAST_RECENT - CM_FIRST_RECENT + 1, samePath};
  HINSTANCE instance_ = nullptr;
  bool closed_ = false;
  // Last, so that it is unloaded before anything it may use goes.
  AddonModule addon_;
};

}  // namespace workbench
