#include "workbench/script/modal_windows.h"

#include <utility>

#include "workbench/events/event_log.h"
#include "workbench/script/event_history.h"
#include "workbench/script/window_text.h"

namespace workbench {
namespace {

constexpr int kBoxTextId = 65535;
constexpr char kDialogClass[] = "#32770";

struct Button {
  int id;
  const char* word;
};
constexpr Button kButtons[] = {{IDOK, "ok"},       {IDCANCEL, "cancel"}, {IDABORT, "abort"},
                               {IDRETRY, "retry"}, {IDIGNORE, "ignore"}, {IDYES, "yes"},
                               {IDNO, "no"}};

int buttonId(const std::string& word) {
  for (const Button& button : kButtons) {
    if (word == button.word) {
      return button.id;
    }
  }
  return 0;
}

// The words of a box's buttons, with commas between.
std::string buttonWords(HWND box) {
  std::string words;
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    for (const Button& button : kButtons) {
      if (GetDlgCtrlID(child) == button.id && windowClass(child) == "Button") {
        if (!words.empty()) {
          words += ',';
        }
        words += button.word;
      }
    }
  }
  return words;
}

const char* iconWord(HWND box) {
  const struct {
    LPCSTR icon;
    const char* word;
  } icons[] = {{IDI_HAND, "error"},
               {IDI_QUESTION, "question"},
               {IDI_EXCLAMATION, "warning"},
               {IDI_ASTERISK, "information"}};
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (windowClass(child) != "Static") {
      continue;
    }
    LRESULT icon = SendMessageA(child, STM_GETICON, 0, 0);
    for (const auto& entry : icons) {
      if (icon != 0 && reinterpret_cast<HICON>(icon) == LoadIconA(nullptr, entry.icon)) {
        return entry.word;
      }
    }
  }
  return "none";
}

// A system message box holds one text, perhaps an icon, and answer buttons. Other
// dialogs may have unnumbered texts, which have the same id, but more besides.
bool isMessageBox(HWND window) {
  int texts = 0;
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    int id = GetDlgCtrlID(child);
    std::string name = windowClass(child);
    bool icon = name == "Static" && (GetWindowLongA(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    bool text = name == "Static" && !icon && LOWORD(id) == kBoxTextId;
    if (text) {
      ++texts;
    }
    if (!text && !icon && !(name == "Button" && id >= IDOK && id <= IDHELP)) {
      return false;
    }
  }
  return texts == 1;
}

BOOL CALLBACK collectDialog(HWND window, LPARAM data) {
  if (IsWindowVisible(window) && windowClass(window) == kDialogClass) {
    reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
  }
  return TRUE;
}

}  // namespace

void ModalWindows::noticeOpen(HWND window) {
  if (windowClass(window) != kDialogClass) {
    return;
  }
  for (size_t i = 0; i < open_.size(); ++i) {
    if (open_[i].window == window) {
      std::swap(open_[i], open_.back());
      return;
    }
  }
  Open open{window, isMessageBox(window), false, windowText(window), {}};
  if (open.is_box && !answers_.empty()) {
    open.answer = answers_.front();
    answers_.pop_front();
  }
  open_.push_back(open);
  if (open.is_box) {
    emitBox(open);
  } else {
    log_.emit(Event("dialog").text("caption", open.caption).text("state", "open"));
  }
}

void ModalWindows::emitBox(const Open& open) {
  log_.emit(Event("box")
                .text("caption", open.caption)
                .text("text", windowText(GetDlgItem(open.window, kBoxTextId)))
                .text("icon", iconWord(open.window))
                .text("buttons", buttonWords(open.window))
                .text("answer", open.answer));
}

void ModalWindows::noticeClosed(HWND window) {
  for (size_t i = 0; i < open_.size(); ++i) {
    if (open_[i].window != window) {
      continue;
    }
    Open closed = open_[i];
    open_.erase(open_.begin() + static_cast<std::ptrdiff_t>(i));
    if (!closed.is_box) {
      log_.emit(Event("dialog").text("caption", closed.caption).text("state", "closed"));
    }
    return;
  }
}

bool ModalWindows::serve(std::string* fault) {
  for (size_t i = open_.size(); i-- > 0;) {
    if (!IsWindow(open_[i].window)) {
      noticeClosed(open_[i].window);
    }
  }
  std::vector<HWND> visible;
  EnumThreadWindows(GetCurrentThreadId(), collectDialog, reinterpret_cast<LPARAM>(&visible));
  for (HWND window : visible) {
    bool known = false;
    for (const Open& open : open_) {
      known = known || open.window == window;
    }
    if (!known) {
      noticeOpen(window);
    }
  }
  for (Open& open : open_) {
    if (!open.answer.empty() && !open.pressed && !press(&open, fault)) {
      return false;
    }
  }
  return true;
}

bool ModalWindows::press(Open* open, std::string* fault) {
  int id = buttonId(open->answer);
  HWND button = GetDlgItem(open->window, id);
  if (button == nullptr) {
    *fault = "the message box \"" + windowText(GetDlgItem(open->window, kBoxTextId)) +
             "\" has no button " + open->answer + ", only " + buttonWords(open->window);
    return false;
  }
  open->pressed = true;
  PostMessageA(open->window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
  return true;
}

bool ModalWindows::answer(const std::string& word) {
  if (buttonId(word) == 0) {
    return false;
  }
  for (size_t i = open_.size(); i-- > 0;) {
    if (open_[i].is_box && open_[i].answer.empty()) {
      open_[i].answer = word;
      log_.emit(Event("answer").text("caption", open_[i].caption).text("answer", word));
      return true;
    }
  }
  answers_.push_back(word);
  return true;
}

bool ModalWindows::boxWaits(std::string* text) const {
  for (size_t i = open_.size(); i-- > 0;) {
    if (!open_[i].is_box) {
      continue;
    }
    if (text != nullptr) {
      *text = windowText(GetDlgItem(open_[i].window, kBoxTextId));
    }
    return open_[i].answer.empty();
  }
  return false;
}

HWND ModalWindows::dialogCalled(const std::string& caption) const {
  for (size_t i = open_.size(); i-- > 0;) {
    if (!open_[i].is_box && wildcardMatch(caption, windowText(open_[i].window))) {
      return open_[i].window;
    }
  }
  return nullptr;
}

bool ModalWindows::anyModal() const {
  for (const Open& open : open_) {
    HWND owner = GetWindow(open.window, GW_OWNER);
    if (open.is_box || owner == nullptr || !IsWindowEnabled(owner)) {
      return true;
    }
  }
  return false;
}

bool ModalWindows::boxOpen() const {
  for (const Open& open : open_) {
    if (open.is_box) {
      return true;
    }
  }
  return false;
}

HWND ModalWindows::dialog() const {
  if (open_.empty() || open_.back().is_box) {
    return nullptr;
  }
  return open_.back().window;
}

void ModalWindows::dismissAll() {
  for (const Open& open : open_) {
    if (!open.is_box) {
      PostMessageA(open.window, WM_CLOSE, 0, 0);
      continue;
    }
    for (int id : {IDCANCEL, IDNO, IDOK, IDABORT}) {
      if (HWND button = GetDlgItem(open.window, id)) {
        PostMessageA(open.window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                     reinterpret_cast<LPARAM>(button));
        break;
      }
    }
  }
}

}  // namespace workbench
