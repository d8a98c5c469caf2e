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

constexpr int kProjectSlots = 50;
constexpr int kHeaderSlots = 199;

static_assert(kFirstProjectId + kProjectSlots - 1 <= kLastProjectId);
static_assert(kFirstHeaderId + kHeaderSlots - 1 <= kLastHeaderId);

HMENU firstSubmenu(HMENU menu, int items) {
  for (int i = 0; i < items; ++i) {
    if (const HMENU submenu = GetSubMenu(menu, i)) {
      return submenu;
    }
  }
  return nullptr;
}

}  // namespace

StoredRecentList::StoredRecentList(SettingSection& section, const char* name,
                                   const char* maximum_name, int slots, int default_maximum)
    : maximum(section, maximum_name, default_maximum),
      list(slots, default_maximum),
      section_(section),
      name_(name) {}

void StoredRecentList::load() {
  maximum.read();
  list.setMaximum(maximum.value);
  Tableau<String> entries;
  settings().readList(section_.name(), name_, entries, list.room());
  std::vector<std::string> paths;
  for (int i = 0; i < entries.count() && !(*entries.at(i) == kMissingEntry); ++i) {
    paths.emplace_back(entries.at(i)->text());
  }
  list.assign(paths);
}

void StoredRecentList::store() const {
  Tableau<String> entries;
  for (int i = 0; i < list.count(); ++i) {
    entries.append(new String(list.at(i)));
  }
  maximum.write();
  settings().writeList(section_.name(), name_, entries);
}

RecentFiles::RecentFiles(HWND bar)
    : bar_(bar),
      projects_(section_, "IDE", "MaxIDE", kProjectSlots, 10),
      headers_(section_, "INC", "MaxINC", kHeaderSlots, 50) {
  projects_.load();
  headers_.load();
  headerRecorder = this;
}

RecentFiles::~RecentFiles() {
  headerRecorder = nullptr;
}

void RecentFiles::save() const {
  projects_.store();
  headers_.store();
}

void RecentFiles::cutToMaxima() {
  projects_.list.setMaximum(projects_.maximum.value);
  headers_.list.setMaximum(headers_.maximum.value);
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
    headers_.list.use(file);
    refreshHeaderMenu();
  }
  return 1;
}

void RecentFiles::forgetHeader(const std::string& path) {
  headers_.list.remove(path);
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
  for (int i = 0; i < headers_.list.count(); ++i) {
    AppendMenuA(submenu, MF_STRING, static_cast<UINT_PTR>(kFirstHeaderId + i),
                menuText(headers_.list.at(i)).c_str());
  }
  DrawMenuBar(bar_);
}

}  // namespace kesto
