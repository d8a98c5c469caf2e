#include "workbench/messages/message_window.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/handles.h"
#include "workbench/windows/window_class.h"

namespace workbench {
namespace {

constexpr UINT kCatchUp = WM_APP + 1;
// Commands of the context menu; groups number from the last on.
constexpr UINT kMenuOpen = 1;
constexpr UINT kMenuClear = 2;
constexpr UINT kMenuFirstGroup = 10;
constexpr UINT kMostMenuGroups = 30;

}  // namespace

MessageWindow::MessageWindow(MessageStore& store, std::function<void(const Message&)> open)
    : MdiPane(ideapi::kMessageClass, "Messages"),
      store_(store),
      open_(std::move(open)),
      tabs_([this](int tab) { showGroup(static_cast<unsigned int>(tab) + 1); }),
      viewer_(*this) {}

bool MessageWindow::registerClasses(HINSTANCE instance) {
  return registerOnce(windowClass(ideapi::kOwlWindowClass, innerProc, instance, COLOR_BTNFACE)) &&
         NoteTab::registerClass(instance) && MessageViewer::registerClass(instance);
}

bool MessageWindow::createControls() {
  inner_ =
      CreateWindowExA(0, ideapi::kOwlWindowClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                      0, 0, 0, 0, window(), nullptr, instance(), nullptr);
  if (inner_ == nullptr) {
    return false;
  }
  SetWindowLongA(inner_, 0, reinterpret_cast<LONG>(this));
  if (!viewer_.create(inner_, instance()) || !tabs_.create(inner_, instance())) {
    return false;
  }
  other_group_ = true;
  const bool header = header_ != 0;
  catchUp();
  if (!header) {
    viewer_.select(row_);
  }
  return true;
}

void MessageWindow::paneGone() {
  inner_ = nullptr;
  update_posted_ = false;
}

RECT MessageWindow::firstPlace(const RECT& client) const {
  const LONG height = std::max(120L, client.bottom / 4);
  return {0, std::max(0L, client.bottom - height), client.right, client.bottom};
}

void MessageWindow::layOut(int width, int height) {
  MoveWindow(inner_, 0, 0, width, height, TRUE);
  const int list_height = std::max(0, height - NoteTab::kHeight);
  MoveWindow(viewer_.window(), 0, 0, width, list_height, TRUE);
  MoveWindow(tabs_.window(), 0, list_height, width, height - list_height, TRUE);
}

LRESULT CALLBACK MessageWindow::innerProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<MessageWindow*>(GetWindowLongA(window, 0));
  if (message == WM_MEASUREITEM) {
    MessageViewer::measureRow(reinterpret_cast<MEASUREITEMSTRUCT*>(l));
    return TRUE;
  }
  if (message == WM_DRAWITEM && self != nullptr) {
    self->viewer_.drawRow(*reinterpret_cast<const DRAWITEMSTRUCT*>(l));
    return TRUE;
  }
  return DefWindowProcA(window, message, w, l);
}

bool MessageWindow::paneMessage(UINT message, WPARAM, LPARAM, LRESULT* result) {
  if (message != kCatchUp) {
    return false;
  }
  update_posted_ = false;
  catchUp();
  *result = 0;
  return true;
}

void MessageWindow::storeChanged(const MessageGroupInfo& group, const Message* added) {
  if (added != nullptr && added->parent == 0) {
    // The steps through the messages go on from here.
    if (shown_ != group.id || group.id != MessageStore::kBuildGroup) {
      row_ = static_cast<int>(group.messages.size()) - 1;
    }
    other_group_ = other_group_ || shown_ != group.id;
    shown_ = group.id;
    header_ = group.id != MessageStore::kBuildGroup ? added->id : 0;
  }
  if (window() != nullptr && !update_posted_) {
    update_posted_ = PostMessageA(window(), kCatchUp, 0, 0) != 0;
  }
}

void MessageWindow::catchUp() {
  std::vector<std::string> names;
  for (const MessageGroupInfo& group : store_.groups()) {
    names.push_back(group.name);
  }
  tabs_.setTabs(names, static_cast<int>(shown_) - 1);
  viewer_.refresh(std::exchange(other_group_, false));
  showHeader();
}

void MessageWindow::showHeader() {
  const unsigned int header = std::exchange(header_, 0);
  const std::vector<Message>* messages = shownMessages();
  for (std::size_t row = messages != nullptr ? messages->size() : 0; header != 0 && row-- > 0;) {
    if ((*messages)[row].id == header) {
      viewer_.showFrom(static_cast<int>(row));
      return;
    }
  }
}

void MessageWindow::showGroup(unsigned int group) {
  if (store_.group(group) == nullptr) {
    return;
  }
  row_ = group == shown_ ? row_ : -1;
  shown_ = group;
  header_ = 0;
  other_group_ = true;
  catchUp();
}

const Message* MessageWindow::step(bool next, bool* wrapped) {
  const std::vector<Message>* messages = shownMessages();
  const int count = messages != nullptr ? static_cast<int>(messages->size()) : 0;
  const int selected = viewer_.selectedRow();
  int row = std::min(selected >= 0 ? selected : row_, count - 1);
  if (row < 0 && !next) {
    row = count;
  }
  for (int tried = 0; tried < count; ++tried) {
    row += next ? 1 : -1;
    if (row < 0 || row >= count) {
      row = next ? 0 : count - 1;
      *wrapped = true;
    }
    const Message& message = (*messages)[static_cast<std::size_t>(row)];
    if (!message.file.empty()) {
      row_ = row;
      header_ = 0;
      viewer_.select(row);
      return &message;
    }
  }
  return nullptr;
}

void MessageWindow::beginAfterLast() {
  const std::vector<Message>* messages = shownMessages();
  row_ = messages != nullptr ? static_cast<int>(messages->size()) - 1 : -1;
  viewer_.select(-1);
}

const std::vector<Message>* MessageWindow::shownMessages() {
  const MessageGroupInfo* group = store_.group(shown_);
  return group != nullptr ? &group->messages : nullptr;
}

void MessageWindow::viewerMenu(POINT place) {
  const OwnedMenu menu(CreatePopupMenu());
  const bool open = viewer_.selectedRow() >= 0;
  AppendMenuA(menu.get(), open ? MF_STRING : MF_GRAYED, kMenuOpen, "&Open\tEnter");
  AppendMenuA(menu.get(), MF_STRING, kMenuClear, "C&lear");
  AppendMenuA(menu.get(), MF_SEPARATOR, 0, nullptr);
  for (UINT i = 0; i < store_.groups().size() && i < kMostMenuGroups; ++i) {
    const UINT mark = i + 1 == shown_ ? MF_CHECKED : MF_UNCHECKED;
    AppendMenuA(menu.get(), MF_STRING | mark, kMenuFirstGroup + i,
                store_.groups()[i].menu_text.c_str());
  }
  const auto chosen = static_cast<UINT>(TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON,
                                                       place.x, place.y, 0, window(), nullptr));
  if (chosen == kMenuOpen) {
    viewer_.openSelected();
  } else if (chosen == kMenuClear) {
    clearShown();
  } else if (chosen >= kMenuFirstGroup) {
    showGroup(chosen - kMenuFirstGroup + 1);
  }
}

}  // namespace workbench
