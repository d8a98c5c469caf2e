#include "addon/topbar/top_bar.h"

#include "addon/foundation/settings_store.h"
#include "addon/ide/open_file.h"
#include "addon/topbar/placement.h"

namespace kesto {

TopBar* topBar = nullptr;

namespace {

constexpr char kSection[] = "TopBar";

ScreenMetrics screenMetrics() {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), GetSystemMetrics(SM_CYMENU),
          GetSystemMetrics(SM_CYCAPTION)};
}

void moveTo(HWND bar, const BarPlacement& place) {
  SetWindowPos(bar, nullptr, place.x, place.y, place.width, place.height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

int clientHeight(HWND bar) {
  RECT client = {};
  GetClientRect(bar, &client);
  return client.bottom;
}

}  // namespace

TopBar::TopBar(bool new_shell, HWND bar) : new_shell_(new_shell), bar_(bar) {
  SettingsStore& store = settings();
  enabled_ = store.readInteger(kSection, "Enabled", 1);
  hide_with_ide_ = store.readInteger(kSection, "HideWithBCW", 1);
  always_on_top_ = store.readInteger(kSection, "AlwaysOnTop", 0);
  edit_other_view_ = store.readInteger(kSection, "EditOtherView", 0);
  left_margin_ = store.readInteger(kSection, "LeftMargin", new_shell ? -1 : 17);
  right_margin_ = store.readInteger(kSection, "RightMargin", new_shell ? 58 : 37);
  menu_size_ = store.readInteger(kSection, "MenuSize", 50);
  readMenuSettings();
  setOpenInOtherView(edit_other_view_ != 0);
}

TopBar::~TopBar() {
  SettingsStore& store = settings();
  store.writeInteger(kSection, "Enabled", enabled_);
  store.writeInteger(kSection, "HideWithBCW", hide_with_ide_);
  store.writeInteger(kSection, "HideWithView", stored_hide_with_view_);
  store.writeInteger(kSection, "AlwaysOnTop", always_on_top_);
  store.writeInteger(kSection, "EditOtherView", edit_other_view_);
  store.writeInteger(kSection, "LeftMargin", left_margin_);
  store.writeInteger(kSection, "RightMargin", right_margin_);
  store.writeInteger(kSection, "MenuSize", menu_size_);
  store.writeInteger(kSection, "Hierarchical", stored_construction_);
}

void TopBar::readMenuSettings() {
  stored_construction_ = construction_ = settings().readInteger(kSection, "Hierarchical", 0);
  stored_hide_with_view_ = hide_with_view_ = settings().readInteger(kSection, "HideWithView", 0);
}

void TopBar::place(bool expanded) {
  BarPlacement place = normalPlacement(screenMetrics(), new_shell_, left_margin_, right_margin_);
  if (!expanded) {
    moveTo(bar_, place);
    return;
  }
  if (expanded_height_ == 0) {
    expanded_height_ = measureExpandedHeight();
    place.height = expanded_height_;
    moveTo(bar_, place);
  } else if (expanded_height_ != place.height) {
    place.height = expanded_height_;
    moveTo(bar_, place);
  }
}

// Only the window itself knows how its menu bar wraps: it grows a row at a time
// until something of its client area shows.
int TopBar::measureExpandedHeight() const {
  const ScreenMetrics metrics = screenMetrics();
  BarPlacement place = normalPlacement(metrics, new_shell_, left_margin_, right_margin_);
  moveTo(bar_, place);
  while (clientHeight(bar_) < 1 && place.height < highestBar(metrics)) {
    place.height += metrics.menu_height;
    moveTo(bar_, place);
  }
  return expandedHeight(place.height, clientHeight(bar_));
}

void TopBar::expand() {
  place(true);
  expanded_ = true;
}

void TopBar::collapse() {
  if (expanded_) {
    place(false);
    expanded_ = false;
  }
}

void TopBar::placeFirst() {
  if (!placed_) {
    place(false);
    expanded_ = false;
    placed_ = true;
  }
}

}  // namespace kesto
