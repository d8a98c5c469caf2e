// The program: it joins frame, editors and project, and is the Workbench
// that services and scripts see. One object a run; user-interface thread only.
#pragma once

#include <windows.h>

#include <string>

#include "workbench/app/frame.h"
#include "workbench/app/workbench.h"
#include "workbench/editor/disk_store_win.h"
#include "workbench/editor/editor_set.h"
#include "workbench/editor/editor_settings.h"
#include "workbench/events/event_log.h"

namespace workbench {

class Application final : public Workbench, public FrameHandler {
 public:
  Application();
  ~Application() override;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  bool createFrame(HINSTANCE instance);
  Frame& frameWindow() { return frame_; }
  EditorSet& editors() { return editors_; }

  EventLog& events() override { return events_; }
  HWND frame() override { return frame_.window(); }
  HWND mdiClient() override { return frame_.mdiClient(); }
  bool openPath(const std::string& path) override;
  bool closeProject() override;
  bool hasProject() override { return !project_folder_.empty(); }
  std::string projectDirectory() override;
  std::string resolve(const std::string& path) override;
  EditorWindow* editFile(const std::string& path, int line) override;
  EditorWindow* findEditor(const std::string& path) override;
  EditorWindow* activeEditor() override { return editors_.active(); }
  void setStatus(const std::string& text) override;
  std::string status() override { return frame_.statusBar().text(); }
  HWND addonBar() override { return FindWindowA("KADO", nullptr); }

  void frameCommand(int id) override;
  bool commandEnabled(int id) override;
  bool mayCloseFrame() override;
  void frameClosing() override;
  void programActivated() override { editors_.checkDisk(); }

 private:
  void fileCommand(int id);
  void editCommand(int id);
  void windowCommand(int id);
  void showEditorState();

  EventLog events_;
  DiskStore store_;
  EditorSettings settings_;
  EditorSet editors_;
  Frame frame_;
  HINSTANCE instance_ = nullptr;
  std::string project_folder_;
};

}  // namespace workbench
