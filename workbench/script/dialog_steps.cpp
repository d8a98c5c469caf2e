#include <windows.h>
// windows.h first: the common controls build on it.
#include <commctrl.h>

#include <cstdlib>

#include "workbench/script/event_history.h"
#include "workbench/script/steps.h"
#include "workbench/script/window_text.h"

namespace workbench {
namespace {

struct Search {
  const std::string& wanted;
  long id;  // 0 when the control is named by its text
  HWND found;
};

BOOL CALLBACK matchControl(HWND control, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  bool hit = search.id != 0 ? GetDlgCtrlID(control) == search.id
                            : wildcardMatch(search.wanted, plainItemText(windowText(control)));
  // Of several pages the one that shows is meant.
  if (hit && IsWindowVisible(control)) {
    search.found = control;
    return FALSE;
  }
  return TRUE;
}

// The control that the first argument names, in the foremost dialog, else null
// with the reason set in *result.
HWND findControl(StepTry& step, StepResult* result) {
  HWND dialog = step.stage.observer.windows().dialog();
  if (dialog == nullptr) {
    *result = step.again("no dialog is in front");
    return nullptr;
  }
  Search search{step.arg(0), std::strtol(step.arg(0).c_str(), nullptr, 10), nullptr};
  EnumChildWindows(dialog, matchControl, reinterpret_cast<LPARAM>(&search));
  if (search.found == nullptr) {
    *result = step.again(
        "the dialog \"" + windowText(dialog) + "\" shows no control " + step.arg(0), 3000);
  } else if (!IsWindowEnabled(search.found)) {
    *result = step.again("the control " + step.arg(0) + " is disabled", 3000);
    return nullptr;
  }
  return search.found;
}

void notifyParent(HWND control, int code) {
  SendMessageA(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code),
               reinterpret_cast<LPARAM>(control));
}

bool isClass(HWND control, const char* name) {
  return lstrcmpiA(windowClass(control).c_str(), name) == 0;
}

LONG style(HWND control) {
  return GetWindowLongA(control, GWL_STYLE);
}

// Selects an entry of a combo box by its text. Returns false when it has none.
bool setCombo(HWND control, const std::string& text) {
  if ((style(control) & 3) != CBS_DROPDOWNLIST) {
    SetWindowTextA(control, text.c_str());
    notifyParent(control, CBN_EDITCHANGE);
    return true;
  }
  LRESULT index = SendMessageA(control, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                               reinterpret_cast<LPARAM>(text.c_str()));
  if (index == CB_ERR) {
    return false;
  }
  SendMessageA(control, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  notifyParent(control, CBN_SELCHANGE);
  return true;
}

bool selectInList(HWND control, WPARAM index) {
  if (static_cast<LRESULT>(index) >= SendMessageA(control, LB_GETCOUNT, 0, 0)) {
    return false;
  }
  if ((style(control) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0) {
    SendMessageA(control, LB_SETSEL, TRUE, static_cast<LPARAM>(index));
  } else {
    SendMessageA(control, LB_SETCURSEL, index, 0);
  }
  notifyParent(control, LBN_SELCHANGE);
  return true;
}

// Takes a row out of the selection of a list that has more than one.
bool leaveOutOfList(HWND control, WPARAM index) {
  const bool left_out =
      SendMessageA(control, LB_SETSEL, FALSE, static_cast<LPARAM>(index)) != LB_ERR;
  notifyParent(control, LBN_SELCHANGE);
  return left_out;
}

bool selectInCombo(HWND control, WPARAM index) {
  if (SendMessageA(control, CB_SETCURSEL, index, 0) == CB_ERR) {
    return false;
  }
  notifyParent(control, CBN_SELCHANGE);
  return true;
}

bool selectInTree(HWND control, WPARAM index) {
  LRESULT item = SendMessageA(control, TVM_GETNEXTITEM, TVGN_ROOT, 0);
  for (; item != 0 && index > 0; --index) {
    item = SendMessageA(control, TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, item);
  }
  return item != 0 && SendMessageA(control, TVM_SELECTITEM, TVGN_CARET, item) != 0;
}

bool selectInView(HWND control, WPARAM index) {
  LVITEMA item{};
  item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  return SendMessageA(control, LVM_SETITEMSTATE, index, reinterpret_cast<LPARAM>(&item)) != 0;
}

bool selectTab(HWND control, WPARAM index) {
  if (static_cast<LRESULT>(index) >= SendMessageA(control, TCM_GETITEMCOUNT, 0, 0)) {
    return false;
  }
  SendMessageA(control, TCM_SETCURFOCUS, index, 0);
  return true;
}

}  // namespace

StepResult stepAnswer(StepTry& step) {
  bool known = step.stage.observer.windows().answer(step.arg(0));
  return known ? StepResult::kDone : step.fail("no such answer: " + step.arg(0));
}

StepResult stepDialog(StepTry& step) {
  const bool closes = step.arg(1) == "close", sizes = step.arg(1) == "size";
  long width = 0, height = 0;
  if (sizes ? step.argCount() != 4
            : step.argCount() != 2 || (!closes && step.arg(1) != "activate")) {
    return step.fail("a dialog is made to activate, close or size WIDTH HEIGHT");
  }
  if (sizes && (!step.number(2, 1, 32767, &width) || !step.number(3, 1, 32767, &height))) {
    return StepResult::kFailed;
  }
  HWND dialog = step.stage.observer.windows().dialogCalled(step.arg(0));
  if (dialog == nullptr) {
    return step.again("no dialog is called " + step.arg(0), 3000);
  }
  if (closes) {
    PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
    return StepResult::kDone;
  }
  if (sizes) {
    SetWindowPos(dialog, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return StepResult::kDone;
  }
  SetForegroundWindow(dialog);
  return GetActiveWindow() == dialog ? StepResult::kDone
                                     : step.again("the dialog does not become active", 3000);
}

StepResult stepSet(StepTry& step) {
  StepResult result = StepResult::kDone;
  HWND control = findControl(step, &result);
  if (control == nullptr) {
    return result;
  }
  if (isClass(control, "ComboBox")) {
    return setCombo(control, step.arg(1)) ? StepResult::kDone
                                          : step.fail("the list has no " + step.arg(1));
  }
  SetWindowTextA(control, step.arg(1).c_str());
  // A field of several lines does not report a text that was put in.
  if (isClass(control, "Edit") && (style(control) & ES_MULTILINE) != 0) {
    notifyParent(control, EN_CHANGE);
  }
  return StepResult::kDone;
}

StepResult stepCheck(StepTry& step) {
  if (step.arg(1) != "on" && step.arg(1) != "off") {
    return step.fail("check is on or off");
  }
  StepResult result = StepResult::kDone;
  HWND control = findControl(step, &result);
  if (control == nullptr) {
    return result;
  }
  LRESULT wanted = step.arg(1) == "on" ? BST_CHECKED : BST_UNCHECKED;
  if (SendMessageA(control, BM_GETCHECK, 0, 0) != wanted) {
    SendMessageA(control, BM_CLICK, 0, 0);
  }
  // A box that its owner checks may have been left as it was.
  bool checked = SendMessageA(control, BM_GETCHECK, 0, 0) == wanted;
  return checked ? StepResult::kDone : step.fail("the control " + step.arg(0) + " stays as it is");
}

StepResult stepSelectItem(StepTry& step) {
  long index = 0;
  if (!step.number(1, 0, 1000000, &index)) {
    return StepResult::kFailed;
  }
  StepResult result = StepResult::kDone;
  HWND control = findControl(step, &result);
  if (control == nullptr) {
    return result;
  }
  const struct {
    const char* name;
    bool (*select)(HWND, WPARAM);
  } kinds[] = {{"ListBox", selectInList},
               {"ComboBox", selectInCombo},
               {"SysTreeView32", selectInTree},
               {"SysListView32", selectInView},
               {"SysTabControl32", selectTab}};
  for (const auto& kind : kinds) {
    if (!isClass(control, kind.name)) {
      continue;
    }
    if (step.argCount() > 2) {
      const bool can = kind.select == selectInList && step.arg(2) == "off";
      return can && leaveOutOfList(control, static_cast<WPARAM>(index))
                 ? StepResult::kDone
                 : step.fail("the control " + step.arg(0) + " cannot be left without that item");
    }
    return kind.select(control, static_cast<WPARAM>(index))
               ? StepResult::kDone
               : step.fail("the control " + step.arg(0) + " has no item " + step.arg(1));
  }
  return step.fail("a " + windowClass(control) + " has no items to select");
}

StepResult stepPress(StepTry& step) {
  StepResult result = StepResult::kDone;
  HWND control = findControl(step, &result);
  if (control == nullptr) {
    return result;
  }
  // Posted: what the button starts may last longer than this step.
  PostMessageA(control, BM_CLICK, 0, 0);
  return StepResult::kDone;
}

}  // namespace workbench
