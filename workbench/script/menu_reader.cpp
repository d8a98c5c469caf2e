#include "workbench/script/menu_reader.h"

#include "workbench/script/event_history.h"

namespace workbench {
namespace {

// A menu that holds itself must not hang the reader.
constexpr int kDeepest = 12;

void appendItems(HMENU menu, int depth, std::vector<Event>* items) {
  MenuItem item;
  for (int i = 0; readMenuItem(menu, i, &item); ++i) {
    items->push_back(Event("")
                         .number("depth", depth)
                         .number("id", static_cast<long>(item.id))
                         .text("text", item.text)
                         .flag("separator", item.separator)
                         .flag("break", item.column_break)
                         .flag("enabled", item.enabled)
                         .flag("popup", item.popup != nullptr));
    if (item.popup != nullptr && depth < kDeepest) {
      appendItems(item.popup, depth + 1, items);
    }
  }
}

bool findIdBelow(HMENU menu, UINT id, int depth, MenuPath* path) {
  MenuItem item;
  for (int i = 0; readMenuItem(menu, i, &item); ++i) {
    path->push_back(i);
    if (item.popup == nullptr && !item.separator && item.id == id) {
      return true;
    }
    if (item.popup != nullptr && depth < kDeepest && findIdBelow(item.popup, id, depth + 1, path)) {
      return true;
    }
    path->pop_back();
  }
  return false;
}

}  // namespace

bool readMenuItem(HMENU menu, int position, MenuItem* item) {
  // Asked without a buffer, the item tells the length of its text first.
  MENUITEMINFOA info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID | MIIM_STATE | MIIM_SUBMENU | MIIM_TYPE;
  if (!GetMenuItemInfoA(menu, static_cast<UINT>(position), TRUE, &info)) {
    return false;
  }
  std::string text(info.cch + 1, '\0');
  info.dwTypeData = text.data();
  info.cch = static_cast<UINT>(text.size());
  if (!GetMenuItemInfoA(menu, static_cast<UINT>(position), TRUE, &info)) {
    return false;
  }
  *item = MenuItem();
  item->popup = info.hSubMenu;
  item->id = info.hSubMenu != nullptr ? 0 : info.wID;
  item->separator = (info.fType & MFT_SEPARATOR) != 0;
  item->column_break = (info.fType & (MFT_MENUBREAK | MFT_MENUBARBREAK)) != 0;
  item->enabled = (info.fState & MFS_DISABLED) == 0;
  item->highlighted = (info.fState & MFS_HILITE) != 0;
  bool has_text = (info.fType & (MFT_BITMAP | MFT_OWNERDRAW | MFT_SEPARATOR)) == 0;
  if (has_text) {
    text.resize(info.cch);
    item->text = text;
  }
  return true;
}

Event menuEvent(HMENU menu) {
  std::vector<Event> items;
  appendItems(menu, 0, &items);
  return Event("menu").list("items", items);
}

void addPopups(HMENU menu, std::set<HMENU>* popups) {
  if (!popups->insert(menu).second) {
    return;
  }
  MenuItem item;
  for (int i = 0; readMenuItem(menu, i, &item); ++i) {
    if (item.popup != nullptr) {
      addPopups(item.popup, popups);
    }
  }
}

MenuPath findById(HMENU menu, UINT id) {
  MenuPath path;
  findIdBelow(menu, id, 0, &path);
  return path;
}

MenuPath findByTexts(HMENU menu, const std::vector<std::string>& texts, bool* whole) {
  MenuPath path;
  *whole = false;
  for (const std::string& text : texts) {
    MenuItem item;
    int position = 0;
    while (readMenuItem(menu, position, &item) &&
           (item.separator || !wildcardMatch(text, plainItemText(item.text)))) {
      ++position;
    }
    if (position >= GetMenuItemCount(menu)) {
      return path;
    }
    path.push_back(position);
    menu = item.popup;
  }
  *whole = true;
  return path;
}

int highlighted(HMENU menu) {
  MenuItem item;
  for (int i = 0; readMenuItem(menu, i, &item); ++i) {
    if (item.highlighted) {
      return i;
    }
  }
  return -1;
}

}  // namespace workbench
