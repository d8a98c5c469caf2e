#include "addon/topbar/bar_menu.h"

#include "addon/foundation/menu_text.h"
#include "addon/foundation/path.h"
#include "addon/ide/current_project.h"
#include "addon/ide/find_window.h"
#include "addon/ide/hook_set.h"
#include "addon/ide/project_nodes.h"
#include "addon/topbar/recent_files.h"
#include "addon/topbar/top_bar.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {

BarMenu* barMenu = nullptr;

namespace {

constexpr char kDescriptionSeparator[] = " : ";
constexpr int kItemTextSize = 512;

bool isProjectViewOpen() {
  const HWND client = findMdiClient();
  return client != nullptr && findChildWindow(client, ideapi::kProjectClass, nullptr) != nullptr;
}

// An open project view may stand in for the menus, whatever number a project gives.
int constructionNow() {
  return static_cast<int>(topBar->hidesWithView() && isProjectViewOpen() ? BarConstruction::kNoMenu
                                                                         : topBar->construction());
}

unsigned nodeAt(const std::vector<unsigned>& nodes, int n) {
  return n >= 0 && n < static_cast<int>(nodes.size()) ? nodes[static_cast<size_t>(n)] : 0;
}

std::string describedName(const ProjectNodes& nodes, unsigned node) {
  std::string text(fileNamePart(nodes.name(node)));
  const std::string description = nodes.description(node);
  if (!description.empty()) {
    text += kDescriptionSeparator;
    text += description;
  }
  return text;
}

// Gives the item the text when it shows another; whether it did.
bool changeText(HMENU menu, UINT item, bool by_position, const std::string& shown) {
  const std::string text = menuText(shown);
  char former[kItemTextSize] = "";
  MENUITEMINFOA info = {};
  info.cbSize = sizeof info;
  info.fMask = MIIM_TYPE;
  info.dwTypeData = former;
  info.cch = sizeof former;
  if (!GetMenuItemInfoA(menu, item, by_position, &info) || text == former) {
    return false;
  }
  // What was read of the type keeps the item in its column.
  std::string changed(text);
  info.dwTypeData = changed.data();
  return SetMenuItemInfoA(menu, item, by_position, &info) != FALSE;
}

// The popup's own item, below the menu it was appended to.
bool changeTitle(HMENU parent, HMENU popup, const std::string& title) {
  const int items = GetMenuItemCount(parent);
  for (int i = 0; i < items; ++i) {
    if (GetSubMenu(parent, i) == popup) {
      return changeText(parent, static_cast<UINT>(i), true, title);
    }
  }
  return false;
}

}  // namespace

void BarMenu::menuOpened(bool open) {
  open_ = open;
  if (!open && rebuild_due_) {
    // What was chosen comes as a message of its own and means the present menus.
    rebuildSoon();
  }
}

void BarMenu::rebuildSoon() {
  if (!rebuild_posted_) {
    rebuild_posted_ = PostMessageA(bar_, WM_COMMAND, kCommandRebuildMenu, 0) != FALSE;
  }
}

void BarMenu::rebuild() {
  rebuild_posted_ = false;
  rebuild_due_ = open_;
  if (open_) {
    return;
  }
  const HMENU old = GetMenu(bar_);
  SetMenu(bar_, nullptr);
  if (old != nullptr) {
    DestroyMenu(old);
  }
  const ProjectNodes nodes;
  BarMenuContent content;
  if (recentFiles != nullptr) {
    content.projects = &recentFiles->projects();
    content.headers = &recentFiles->headers();
  }
  if (isProjectOpen()) {
    content.tree = &nodes;
  }
  content.groupware_active = features_.groupwareActive();
  content.html_active = features_.htmlActive();
  if (topBar != nullptr) {
    content.construction = constructionNow();
    content.column_size = topBar->menuSize();
    topBar->forgetExpandedHeight();
  }
  plan_ = planBarMenu(content);
  menus_.assign(plan_.popups.size(), nullptr);
  SetMenu(bar_, build(BarMenuPlan::kBar));
  DrawMenuBar(bar_);
}

// As deep as the plan nests, which is bounded.
HMENU BarMenu::build(int popup) {
  const HMENU menu = popup == BarMenuPlan::kBar ? CreateMenu() : CreatePopupMenu();
  if (menu == nullptr) {
    return nullptr;
  }
  menus_[static_cast<size_t>(popup)] = menu;
  for (const BarItem& item : plan_.popups[static_cast<size_t>(popup)].items) {
    const UINT flags = MF_STRING | (item.column_break ? MF_MENUBARBREAK : 0U);
    const std::string text = menuText(item.text);
    if (item.kind == BarItem::Kind::kSeparator) {
      AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
    } else if (item.kind == BarItem::Kind::kCommand) {
      AppendMenuA(menu, flags, static_cast<UINT_PTR>(item.id), text.c_str());
    } else if (const HMENU submenu = build(item.popup)) {
      AppendMenuA(menu, flags | MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), text.c_str());
    }
  }
  return menu;
}

HMENU BarMenu::menuAt(int popup) const {
  return popup < static_cast<int>(menus_.size()) ? menus_[static_cast<size_t>(popup)] : nullptr;
}

void BarMenu::nodeChanged(unsigned node, const char* name) {
  const std::string title(fileNamePart(name));
  for (size_t n = 0; n < plan_.tools.size(); ++n) {
    if (plan_.tools[n] == node) {
      changeText(menuAt(BarMenuPlan::kMain), static_cast<UINT>(kFirstToolId) + n, false,
                 toolText(title));
    }
  }
  for (size_t n = 0; n < plan_.files.size(); ++n) {
    const PlacedNode& file = plan_.files[n];
    if (file.node == node) {
      if (changeText(menuAt(file.popup), static_cast<UINT>(kFirstFileId) + n, false, title) &&
          file.popup == BarMenuPlan::kBar) {
        DrawMenuBar(bar_);
      }
      return;
    }
  }
  for (const PlacedNode& target : plan_.targets) {
    if (target.node != node) {
      continue;
    }
    for (const HMENU parent : menus_) {
      if (parent != nullptr && changeTitle(parent, menuAt(target.popup), title)) {
        DrawMenuBar(bar_);
        return;
      }
    }
  }
}

unsigned BarMenu::tool(int n) const {
  return nodeAt(plan_.tools, n);
}

unsigned BarMenu::file(int n) const {
  return n >= 0 && n < static_cast<int>(plan_.files.size())
             ? plan_.files[static_cast<size_t>(n)].node
             : 0;
}

std::string BarMenu::toolName(int n) const {
  const unsigned node = tool(n);
  const ProjectNodes nodes;
  return nodes.exists(node) ? describedName(nodes, node) : "nothing !";
}

std::string BarMenu::fileName(int n) const {
  const unsigned node = file(n);
  if (node == 0) {
    return "a file in the project ...";
  }
  const ProjectNodes nodes;
  return nodes.exists(node) ? describedName(nodes, node) : "a bad file in the project ...";
}

}  // namespace kesto
