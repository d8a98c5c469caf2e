#include "addon/topbar/top_bar.h"

#include "addon/foundation/settings_store.h"
#include "addon/ide/open_file.h"
#include "addon/topbar/placement.h"

namespace kesto {

TopBar* topBar = nullptr;

namespace {

constexpr char kSection[] = "TopBar";

ScreenMetrics screenMetrics() {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
          GetSystemMetrics(SM_CYMENU), GetSystemMetrics(SM_CYCAPTION)};
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

TopBar::TopBar(bool newShell, HWND bar) : newShell_(newShell), bar_(bar) {
  SettingsStore& store = settings();
  enabled_ = store.readInteger(kSection, "Enabled", 1);
  hideWithIde_ = store.readInteger(kSection, "HideWithBCW", 1);
  hideWithView_ = store.readInteger(kSection, "HideWithView", 0);
  alwaysOnTop_ = store.readInteger(kSection, "AlwaysOnTop", 0);
  editOtherView_ = store.readInteger(kSection, "EditOtherView", 0);
  leftMargin_ = store.readInteger(kSection, "LeftMargin", newShell ? -1 : 17);
  rightMargin_ = store.readInteger(kSection, "RightMargin", newShell ? 58 : 37);
  menuSize_ = store.readInteger(kSection, "MenuSize", 50);
  construction_ = store.readInteger(kSection, "Hierarchical", 0);
  setOpenInOtherView(editOtherView_ != 0);
}

TopBar::~TopBar() {
  SettingsStore& store = settings();
  store.writeInteger(kSection, "Enabled", enabled_);
  store.writeInteger(kSection, "HideWithBCW", hideWithIde_);
  store.writeInteger(kSection, "HideWithView", hideWithView_);
  store.writeInteger(kSection, "AlwaysOnTop", alwaysOnTop_);
  store.writeInteger(kSection, "EditOtherView", editOtherView_);
  store.writeInteger(kSection, "LeftMargin", leftMargin_);
  store.writeInteger(kSection, "RightMargin", rightMargin_);
  store.writeInteger(kSection, "MenuSize", menuSize_);
  store.writeInteger(kSection, "Hierarchical", construction_);
}

void TopBar::place(bool expanded) {
  BarPlacement place = normalPlacement(screenMetrics(), newShell_, leftMargin_, rightMargin_);
  if (!expanded) {
    moveTo(bar_, place);
    return;
  }
  if (expandedHeight_ == 0) {
    expandedHeight_ = measureExpandedHeight();
    place.height = expandedHeight_;
    moveTo(bar_, place);
  } else if (expandedHeight_ != place.height) {
    place.height = expandedHeight_;
    moveTo(bar_, place);
  }
}

// Only the window itself knows how its menu bar wraps: it grows a row at a time
// until something of its client area shows.
int TopBar::measureExpandedHeight() const {
  const ScreenMetrics metrics = screenMetrics();
  BarPlacement place = normalPlacement(metrics, newShell_, leftMargin_, rightMargin_);
  moveTo(bar_, place);
  while (clientHeight(bar_) < 1 && place.height < highestBar(metrics)) {
    place.height += metrics.menuHeight;
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

}  // namespace kesto
