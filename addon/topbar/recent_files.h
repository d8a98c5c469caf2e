// The recent projects and headers: kept in the settings, shown in the bar's menus.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <string>

#include "addon/foundation/setting.h"
#include "addon/ide/header_recorder.h"
#include "addon/topbar/recent_list.h"

namespace kesto {

// A list that is kept from one session to the next, with how many files it holds at most.
class StoredRecentList {
 public:
  // The names are those of the settings.
  StoredRecentList(SettingSection& section, const char* name, const char* maximum_name, int slots,
                   int default_maximum);

  void load();
  void store() const;

  IntegerSetting maximum;  // the list follows it when it is told
  RecentList list;

 private:
  const SettingSection& section_;
  const char* name_;
};

class RecentFiles : public HeaderRecorder {
 public:
  // Reads the lists.
  explicit RecentFiles(HWND bar);
  ~RecentFiles() override;
  RecentFiles(const RecentFiles&) = delete;
  RecentFiles& operator=(const RecentFiles&) = delete;

  void save() const;

  RecentList& projects() { return projects_.list; }
  RecentList& headers() { return headers_.list; }
  IntegerSetting& maximumOfProjects() { return projects_.maximum; }
  IntegerSetting& maximumOfHeaders() { return headers_.maximum; }
  // Takes from each list what is beyond its maximum.
  void cutToMaxima();

  int headerUsed(const char* path, HWND new_editor) override;
  // Takes a header that is gone out of the list.
  void forgetHeader(const std::string& path);

 private:
  void refreshHeaderMenu() const;

  HWND bar_;
  SettingSection section_{"TopBar"};
  StoredRecentList projects_;
  StoredRecentList headers_;
};

extern RecentFiles* recentFiles;

}  // namespace kesto
