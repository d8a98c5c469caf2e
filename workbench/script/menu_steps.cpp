// Menus are walked with the keys a person would press, so that the entries on the
// way are highlighted and report their status texts.

#include <algorithm>
#include <charconv>

#include "workbench/main_window.h"
#include "workbench/script/input.h"
#include "workbench/script/menu_reader.h"
#include "workbench/script/steps.h"

namespace workbench {
namespace {

// More keys at once would only crowd the queue.
constexpr int kMostKeys = 64;
constexpr int kMostLevels = 16;

// The argument of "choose": a number, a position or the texts of a path.
struct Wanted {
  UINT id = 0;       // when above 0
  int position = 0;  // from 1, when above 0
  std::vector<std::string> texts;
};

int wholeNumber(const std::string& text, size_t from) {
  int number = 0;
  const char* end = text.data() + text.size();
  auto [stop, fault] = std::from_chars(text.data() + from, end, number);
  return fault == std::errc() && stop == end && number > 0 ? number : 0;
}

Wanted readWanted(const std::string& arg) {
  Wanted wanted;
  wanted.id = static_cast<UINT>(wholeNumber(arg, 0));
  wanted.position = arg.substr(0, 1) == "#" ? wholeNumber(arg, 1) : 0;
  if (wanted.id != 0 || wanted.position != 0) {
    return wanted;
  }
  for (size_t from = 0; from <= arg.size();) {
    size_t bar = std::min(arg.find('|', from), arg.size());
    wanted.texts.push_back(arg.substr(from, bar - from));
    from = bar + 1;
  }
  return wanted;
}

// The highlighted entries from the root down: where the user stands.
MenuPath standing(HMENU menu) {
  MenuPath path;
  while (menu != nullptr && path.size() < kMostLevels) {
    int position = highlighted(menu);
    if (position < 0) {
      break;
    }
    path.push_back(position);
    menu = GetSubMenu(menu, position);
  }
  return path;
}

HMENU menuAt(HMENU root, const MenuPath& path, size_t level) {
  for (size_t i = 0; i < level; ++i) {
    root = GetSubMenu(root, path[i]);
  }
  return root;
}

// Looks in the whole menu first, then in the popups that are open.
MenuPath findPath(const MenuLoop& loop, const Wanted& wanted, bool* whole) {
  *whole = true;
  if (wanted.id != 0) {
    return findById(loop.root, wanted.id);
  }
  MenuPath open = standing(loop.root);
  if (wanted.position != 0) {
    // The deepest popup is that of the last highlighted entry.
    MenuPath path(open.begin(), open.empty() ? open.end() : open.end() - 1);
    HMENU menu = menuAt(loop.root, path, path.size());
    MenuItem item;
    int left = wanted.position;
    for (int i = 0; readMenuItem(menu, i, &item); ++i) {
      if (!item.separator && --left == 0) {
        path.push_back(i);
        return path;
      }
    }
    return {};
  }
  MenuPath best = findByTexts(loop.root, wanted.texts, whole);
  for (size_t level = 1; best.empty() && level <= open.size(); ++level) {
    HMENU menu = menuAt(loop.root, open, level);
    MenuPath below = menu == nullptr ? MenuPath() : findByTexts(menu, wanted.texts, whole);
    if (below.empty()) {
      continue;
    }
    best.assign(open.begin(), open.begin() + static_cast<std::ptrdiff_t>(level));
    best.insert(best.end(), below.begin(), below.end());
  }
  return best;
}

void postKeys(HWND owner, int key, int count) {
  for (int i = 0; i < count; ++i) {
    PostMessageA(owner, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
  }
}

// How many presses lead from one entry to another; separators are passed over.
int stepsBetween(HMENU menu, int from, int to) {
  int count = 0;
  MenuItem item;
  for (int i = std::min(from, to); i < std::max(from, to); ++i) {
    if (readMenuItem(menu, i, &item) && !item.separator) {
      ++count;
    }
  }
  return count;
}

// Moves the highlight of one level to the entry wanted.
void moveTo(const MenuLoop& loop, HMENU menu, bool across, int from, int to) {
  if (from < 0) {
    postKeys(loop.owner, VK_HOME, 1);
  } else {
    int key = to > from ? (across ? VK_RIGHT : VK_DOWN) : (across ? VK_LEFT : VK_UP);
    postKeys(loop.owner, key, std::min(stepsBetween(menu, from, to), kMostKeys));
  }
}

// A menu takes no Enter while Ctrl is down, but a click.
void clickEntry(HMENU menu, int position, KeyStroke held) {
  if (held.alt) {
    holdAlt(true);
    held.alt = false;
  }
  RECT place{};
  GetMenuItemRect(nullptr, menu, static_cast<UINT>(position), &place);
  clickMouse({(place.left + place.right) / 2, (place.top + place.bottom) / 2}, MouseButton::kLeft,
             held);
}

// One move towards the entry. Returns true when it has been chosen.
bool approach(const MenuLoop& loop, const MenuPath& path, bool whole, const KeyStroke& held) {
  MenuPath now = standing(loop.root);
  for (size_t level = 0; level < path.size(); ++level) {
    int from = level < now.size() ? now[level] : -1;
    HMENU menu = menuAt(loop.root, path, level);
    if (from != path[level]) {
      if (now.size() > level + 1) {
        postKeys(loop.owner, VK_ESCAPE, 1);
      } else if (level > 0 && from < 0 && now.size() < level) {
        return false;
      } else {
        moveTo(loop, menu, loop.is_bar && level == 0, from, path[level]);
      }
      return false;
    }
    bool last = level + 1 == path.size();
    if (last || now.size() == level + 1) {
      if (last && whole && (held.ctrl || held.shift || held.alt)) {
        clickEntry(menu, path[level], held);
      } else {
        postKeys(loop.owner, VK_RETURN, 1);
      }
      return last && whole;
    }
  }
  return false;
}

bool holds(HMENU menu, const Wanted& wanted) {
  bool whole = false;
  if (menu == nullptr) {
    return false;
  }
  return wanted.id != 0 ? !findById(menu, wanted.id).empty()
                        : !findByTexts(menu, wanted.texts, &whole).empty();
}

StepResult openBar(StepTry& step, const Wanted& wanted) {
  Stage& stage = step.stage;
  if (stage.bar_opened) {
    return step.again("the menu bar does not open");
  }
  for (HWND window : {stage.window.frame(), stage.window.addonBar()}) {
    if (window != nullptr && wanted.position == 0 && holds(GetMenu(window), wanted)) {
      stage.bar_opened = true;
      PostMessageA(window, WM_SYSCOMMAND, SC_KEYMENU, 0);
      return step.again("the menu bar does not open");
    }
  }
  return step.again("no menu is open, and no menu bar has " + step.arg(0), 3000);
}

}  // namespace

StepResult stepChoose(StepTry& step) {
  Stage& stage = step.stage;
  KeyStroke held;
  if (step.argCount() == 2 && !parseKey(step.arg(1) + "+a", &held)) {
    return step.fail("usage: choose ENTRY [Ctrl|Shift|Alt]");
  }
  if (step.attempt == 0) {
    stage.chosen_in = 0;
    stage.bar_opened = false;
  }
  const MenuLoop* loop = stage.observer.menu();
  if (stage.chosen_in != 0) {
    bool closed = loop == nullptr || loop->serial != stage.chosen_in;
    if (closed && held.alt) {
      holdAlt(false);
    }
    return closed ? StepResult::kDone : step.again("the menu stays open");
  }
  Wanted wanted = readWanted(step.arg(0));
  if (loop == nullptr) {
    return openBar(step, wanted);
  }
  bool whole = false;
  MenuPath path = findPath(*loop, wanted, &whole);
  if (path.empty() || (!whole && standing(loop->root).size() > path.size())) {
    return step.again("the open menu has no entry " + step.arg(0), 2000);
  }
  MenuItem item;
  // A popup's entries are brought up to date as it opens.
  const MenuPath now = standing(loop->root);
  const bool open =
      now.size() >= path.size() && std::equal(path.begin(), path.end() - 1, now.begin());
  if (readMenuItem(menuAt(loop->root, path, path.size() - 1), path.back(), &item) &&
      !item.enabled && open) {
    return step.fail("the menu entry " + step.arg(0) + " is disabled");
  }
  if (whole && item.popup != nullptr) {
    bool shown = standing(loop->root).size() > path.size();
    if (shown) {
      return StepResult::kDone;
    }
    whole = false;
  }
  if (approach(*loop, path, whole, held)) {
    stage.chosen_in = loop->serial;
  }
  return step.again("the highlight does not reach the menu entry " + step.arg(0));
}

StepResult stepCommand(StepTry& step) {
  long id = 0;
  if (!step.number(0, 1, 65535, &id)) {
    return StepResult::kFailed;
  }
  HWND bar = step.stage.window.addonBar();
  if (bar == nullptr) {
    return step.again("there is no bar of the add-on", 2000);
  }
  PostMessageA(bar, WM_COMMAND, static_cast<WPARAM>(id), 0);
  return StepResult::kDone;
}

StepResult stepTick(StepTry& step) {
  long count = 0;
  if (!step.number(0, 1, 1000000, &count)) {
    return StepResult::kFailed;
  }
  HWND bar = step.stage.window.addonBar();
  if (bar == nullptr) {
    return step.again("there is no bar of the add-on", 2000);
  }
  for (long i = 0; i < count && IsWindow(bar); ++i) {
    SendMessageA(bar, WM_TIMER, 1, 0);
  }
  return StepResult::kDone;
}

}  // namespace workbench
