#include "addon/topbar/top_bar.h"

#include "addon/ide/open_file.h"

namespace kesto {

TopBar* topBar = nullptr;

namespace {

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

TopBar::TopBar(bool new_shell, HWND bar) : settings(new_shell), new_shell_(new_shell), bar_(bar) {
  settings.section.read();
  useConstruction(settings.construction.value);
  useHidesWithView(settings.hide_with_view.value);
  setOpenInOtherView(settings.edit_other_view.value != 0);
}

TopBar::~TopBar() {
  settings.section.write();
}

void TopBar::readMenuSettings() {
  settings.construction.read();
  settings.hide_with_view.read();
  useConstruction(settings.construction.value);
  useHidesWithView(settings.hide_with_view.value);
}

void TopBar::chooseMenus(int construction, int hides_with_view) {
  if (construction != construction_) {
    settings.construction.value = construction_ = construction;
  }
  if (hides_with_view != hide_with_view_) {
    settings.hide_with_view.value = hide_with_view_ = hides_with_view;
  }
}

TopBar::Look TopBar::look() const {
  return {settings.enabled.value, settings.always_on_top.value, settings.left_margin.value,
          settings.right_margin.value};
}

void TopBar::follow(const Look& before) {
  setOpenInOtherView(settings.edit_other_view.value != 0);
  if (look().left_margin != before.left_margin || look().right_margin != before.right_margin) {
    place(false);
  }
  if (look().enabled != before.enabled) {
    ShowWindow(bar_, enabled() ? SW_SHOWNA : SW_HIDE);
  }
  if (look().always_on_top != before.always_on_top) {
    SetWindowLongA(bar_, GWL_EXSTYLE,
                   (new_shell_ ? WS_EX_TOOLWINDOW : 0) | (alwaysOnTop() ? WS_EX_TOPMOST : 0));
    SetWindowPos(bar_, alwaysOnTop() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
  }
}

BarPlacement TopBar::normalPlace() const {
  return normalPlacement(screenMetrics(), new_shell_, settings.left_margin.value,
                         settings.right_margin.value);
}

void TopBar::place(bool expanded) {
  BarPlacement place = normalPlace();
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
  BarPlacement place = normalPlace();
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
