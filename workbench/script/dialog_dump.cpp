#include "workbench/events/event_log.h"
#include "workbench/script/steps.h"
#include "workbench/script/window_text.h"

namespace workbench {
namespace {

bool isClass(HWND control, const char* name) {
  return lstrcmpiA(windowClass(control).c_str(), name) == 0;
}

// The texts of a list by its messages; one whose owner draws it keeps none.
std::vector<std::string> listTexts(HWND list, UINT count, UINT length, UINT text, bool has_texts) {
  std::vector<std::string> texts;
  const LRESULT rows = SendMessageA(list, count, 0, 0);
  for (LRESULT row = 0; row < rows; ++row) {
    std::string buffer;
    const LRESULT size = has_texts ? SendMessageA(list, length, static_cast<WPARAM>(row), 0) : 0;
    if (size > 0) {
      buffer.resize(static_cast<size_t>(size) + 1);
      const LRESULT got = SendMessageA(list, text, static_cast<WPARAM>(row),
                                       reinterpret_cast<LPARAM>(buffer.data()));
      buffer.resize(got > 0 && got <= size ? static_cast<size_t>(got) : 0);
    }
    texts.push_back(buffer);
  }
  return texts;
}

void addListBox(Event& item, HWND list) {
  const LONG style = GetWindowLongA(list, GWL_STYLE);
  const bool drawn = (style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0;
  const std::vector<std::string> rows = listTexts(list, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT,
                                                  !drawn || (style & LBS_HASSTRINGS) != 0);
  std::vector<long> selected;
  for (size_t row = 0; row < rows.size(); ++row) {
    if (SendMessageA(list, LB_GETSEL, row, 0) > 0) {
      selected.push_back(static_cast<long>(row));
    }
  }
  item.texts("rows", rows)
      .numbers("selected", selected)
      .number("top", static_cast<long>(SendMessageA(list, LB_GETTOPINDEX, 0, 0)))
      .number("extent", static_cast<long>(SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0)));
}

void addComboBox(Event& item, HWND combo) {
  const LONG style = GetWindowLongA(combo, GWL_STYLE);
  const bool drawn = (style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) != 0;
  std::vector<long> selected;
  const LRESULT row = SendMessageA(combo, CB_GETCURSEL, 0, 0);
  if (row != CB_ERR) {
    selected.push_back(static_cast<long>(row));
  }
  item.texts("entries", listTexts(combo, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT,
                                  !drawn || (style & CBS_HASSTRINGS) != 0))
      .numbers("selected", selected);
}

BOOL CALLBACK addControl(HWND control, LPARAM data) {
  const bool is_button = isClass(control, "Button");
  RECT place = {};
  GetWindowRect(control, &place);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
  Event item("");
  item.number("id", GetDlgCtrlID(control))
      .text("class", windowClass(control))
      .text("text", windowText(control))
      .flag("checked", is_button && SendMessageA(control, BM_GETCHECK, 0, 0) == BST_CHECKED)
      .flag("enabled", IsWindowEnabled(control) != 0)
      .flag("visible", IsWindowVisible(control) != 0)
      .flag("focus", GetFocus() == control)
      .number("x", place.left)
      .number("y", place.top)
      .number("width", place.right - place.left)
      .number("height", place.bottom - place.top);
  if (isClass(control, "ListBox")) {
    addListBox(item, control);
  } else if (isClass(control, "ComboBox")) {
    addComboBox(item, control);
  }
  reinterpret_cast<std::vector<Event>*>(data)->push_back(item);
  return TRUE;
}

}  // namespace

StepResult dumpDialog(StepTry& step) {
  HWND dialog = step.stage.observer.windows().dialog();
  if (dialog == nullptr) {
    return step.again("no dialog is in front");
  }
  std::vector<Event> items;
  EnumChildWindows(dialog, addControl, reinterpret_cast<LPARAM>(&items));
  RECT client = {};
  GetClientRect(dialog, &client);
  step.stage.log.emit(Event("controls")
                          .text("caption", windowText(dialog))
                          .number("width", client.right)
                          .number("height", client.bottom)
                          .list("items", items));
  return StepResult::kDone;
}

}  // namespace workbench
