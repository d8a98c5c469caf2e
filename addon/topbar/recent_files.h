// The recent projects and headers: kept in the settings, shown in the bar's menus.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <string>

#include "addon/ide/header_recorder.h"
#include "addon/topbar/recent_list.h"

namespace kesto {

class RecentFiles : public HeaderRecorder {
 public:
  // Reads the lists.
  explicit RecentFiles(HWND bar);
  ~RecentFiles() override;
  RecentFiles(const RecentFiles&) = delete;
  RecentFiles& operator=(const RecentFiles&) = delete;

  void save() const;

  RecentList& projects() { return projects_; }
  RecentList& headers() { return headers_; }

  int headerUsed(const char* path, HWND new_editor) override;
  // Takes a header that is gone out of the list.
  void forgetHeader(const std::string& path);

 private:
  void refreshHeaderMenu() const;

  HWND bar_;
  RecentList projects_;
  RecentList headers_;
};

extern RecentFiles* recentFiles;

}  // namespace kesto
