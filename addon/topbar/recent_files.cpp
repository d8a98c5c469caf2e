#include "addon/topbar/recent_files.h"

#include "addon/foundation/full_path.h"
#include "addon/foundation/menu_text.h"
#include "addon/foundation/settings_store.h"
#include "addon/ide/open_file.h"
#include "addon/ide/status_line.h"
#include "addon/topbar/bar_menu_plan.h"

namespace kesto {

RecentFiles* recentFiles = nullptr;

namespace {

constexpr char kSection[] = "TopBar";
constexpr char kMissing[] = "not found";

constexpr struct StoredList {
  const char* name;
  const char* maximum_name;
  int slots;
  int default_maximum;
} kProjects = {"IDE", "MaxIDE", 50, 10}, kHeaders = {"INC", "MaxINC", 199, 50};

static_assert(kFirstProjectId + kProjects.slots - 1 <= kLastProjectId);
static_assert(kFirstHeaderId + kHeaders.slots - 1 <= kLastHeaderId);

void load(const StoredList& stored, RecentList& list) {
  list.setMaximum(settings().readInteger(kSection, stored.maximum_name, stored.default_maximum));
  Tableau<String> entries;
  settings().readList(kSection, stored.name, entries, list.room());
  std::vector<std::string> paths;
  for (int i = 0; i < entries.count() && !(*entries.at(i) == kMissing); ++i) {
    paths.emplace_back(entries.at(i)->text());
  }
  list.assign(paths);
}

void store(const StoredList& stored, const RecentList& list) {
  Tableau<String> entries;
  for (int i = 0; i < list.count(); ++i) {
    entries.append(new String(list.at(i)));
  }
  settings().writeInteger(kSection, stored.maximum_name, list.maximum());
  settings().writeList(kSection, stored.name, entries);
}

HMENU firstSubmenu(HMENU menu, int items) {
  for (int i = 0; i < items; ++i) {
    if (const HMENU submenu = GetSubMenu(menu, i)) {
      return submenu;
    }
  }
  return nullptr;
}

}  // namespace

RecentFiles::RecentFiles(HWND bar)
    : bar_(bar),
      projects_(kProjects.slots, kProjects.default_maximum),
      headers_(kHeaders.slots, kHeaders.default_maximum) {
  load(kProjects, projects_);
  load(kHeaders, headers_);
  headerRecorder = this;
}

RecentFiles::~RecentFiles() {
  headerRecorder = nullptr;
}

void RecentFiles::save() const {
  store(kProjects, projects_);
  store(kHeaders, headers_);
}

int RecentFiles::headerUsed(const char* path, HWND new_editor) {
  const std::string file = fullPath(headerPath(path));
  if (!wantsOtherView()) {
    if (const HWND editor = findEditorTitled(file, new_editor)) {
      raiseEditor(editor);
      return 0;
    }
  }
  if (isHeader(file)) {
    headers_.use(file);
    refreshHeaderMenu();
  }
  return 1;
}

void RecentFiles::forgetHeader(const std::string& path) {
  headers_.remove(path);
  refreshHeaderMenu();
}

void RecentFiles::refreshHeaderMenu() const {
  const HMENU menu_bar = GetMenu(bar_);
  if (menu_bar == nullptr) {
    showStatus("Pas de bar");
    return;
  }
  const HMENU first = GetSubMenu(menu_bar, 0);
  if (first == nullptr) {
    showStatus("Pas de mnu");
    return;
  }
  const int items = GetMenuItemCount(first);
  if (items < 1) {
    showStatus("mnu.taille=0");
    return;
  }
  const HMENU submenu = firstSubmenu(first, items);
  if (submenu == nullptr) {
    showStatus("Pas de hh");
    return;
  }
  while (GetMenuItemCount(submenu) > 0) {
    DeleteMenu(submenu, 0, MF_BYPOSITION);
  }
  for (int i = 0; i < headers_.count(); ++i) {
    AppendMenuA(submenu, MF_STRING, static_cast<UINT_PTR>(kFirstHeaderId + i),
                menuText(headers_.at(i)).c_str());
  }
  DrawMenuBar(bar_);
}

}  // namespace kesto
