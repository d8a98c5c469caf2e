#include "addon/pages/page_exchange.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "addon/foundation/settings_values.h"

namespace kesto {

std::string controlText(HWND dialog, int control) {
  HWND window = GetDlgItem(dialog, control);
  std::string text(static_cast<size_t>(GetWindowTextLengthA(window)) + 1, '\0');
  const int length = GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<size_t>(length));
  return text;
}

bool controlNumber(HWND dialog, int control, int& value) {
  const std::string text = controlText(dialog, control);
  char* end = nullptr;
  errno = 0;
  const long number = strtol(text.c_str(), &end, 10);
  const bool whole = end != text.c_str() && end[strspn(end, " ")] == '\0';
  if (whole && errno == 0) {
    value = static_cast<int>(number);
  }
  return whole && errno == 0;
}

void PageExchange::meet(int control, const char* help, int change) {
  if (control != control_) {
    return;
  }
  help_ = help;
  changed_ = changed_ || (purpose_ == Purpose::kChange && notification_ == change);
}

void PageExchange::flag(int control, const char* help, int& value) {
  meet(control, help, BN_CLICKED);
  if (fills()) {
    CheckDlgButton(dialog_, control, value != 0 ? BST_CHECKED : BST_UNCHECKED);
  } else if (stores()) {
    value = IsDlgButtonChecked(dialog_, control) == BST_CHECKED ? 1 : 0;
  }
}

void PageExchange::choice(int control, const char* help, int& value, int chosen) {
  meet(control, help, BN_CLICKED);
  if (fills()) {
    CheckDlgButton(dialog_, control, value == chosen ? BST_CHECKED : BST_UNCHECKED);
  } else if (stores() && IsDlgButtonChecked(dialog_, control) == BST_CHECKED) {
    value = chosen;
  }
}

void PageExchange::number(int control, const char* help, int& value) {
  meet(control, help, EN_CHANGE);
  if (fills()) {
    SendDlgItemMessageA(dialog_, control, EM_LIMITTEXT, kIntegerTextSize - 1, 0);
    SetDlgItemInt(dialog_, control, static_cast<UINT>(value), TRUE);
  } else if (stores()) {
    controlNumber(dialog_, control, value);
  }
}

void PageExchange::text(int control, const char* help, std::string& value, std::size_t limit) {
  meet(control, help, EN_CHANGE);
  if (fills()) {
    SendDlgItemMessageA(dialog_, control, EM_LIMITTEXT, limit, 0);
    SetDlgItemTextA(dialog_, control, value.c_str());
  } else if (stores()) {
    value = controlText(dialog_, control);
  }
}

void PageExchange::plain(int control, const char* help) {
  meet(control, help, -1);
}

void PageExchange::enable(int control, bool enabled) const {
  if (fills()) {
    EnableWindow(GetDlgItem(dialog_, control), enabled ? TRUE : FALSE);
  }
}

}  // namespace kesto
