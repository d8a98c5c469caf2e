#include "workbench/app/editor_page.h"

#include <string>

#include "workbench/services/ide_string.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/names.h"

namespace workbench {
namespace {

// Says what is wrong with a number out of its range and leads to it.
bool checkNumber(HWND dialog, int control, int least, int most, const char* what) {
  BOOL read = FALSE;
  const UINT value = GetDlgItemInt(dialog, control, &read, FALSE);
  if (read != FALSE && value >= static_cast<UINT>(least) && value <= static_cast<UINT>(most)) {
    return true;
  }
  std::string text = what;
  text += " must be a number from ";
  text += std::to_string(least);
  text += " to ";
  text += std::to_string(most);
  text += ".";
  MessageBoxA(dialog, text.c_str(), kProgramCaption, MB_OK | MB_ICONWARNING);
  SetFocus(GetDlgItem(dialog, control));
  return false;
}

}  // namespace

EditorPage::EditorPage(LiveObjects& live, EditorSettings& settings)
    : Transient(live, "editor page"), live_(live), settings_(settings) {}

IIdeString* STDMETHODCALLTYPE EditorPage::GetTitle() {
  return handOut(live_, "Editor");
}

HINSTANCE STDMETHODCALLTYPE EditorPage::GetModule() {
  return GetModuleHandleA(nullptr);
}

int STDMETHODCALLTYPE EditorPage::GetDialogId() {
  return IDD_PAGE_EDITOR;
}

IIdeString* STDMETHODCALLTYPE EditorPage::GetDescription() {
  return handOut(live_, "How editors show their text");
}

void STDMETHODCALLTYPE EditorPage::Fill(HWND dialog) {
  SetDlgItemInt(dialog, IDC_TAB_WIDTH, static_cast<UINT>(settings_.tab_width), FALSE);
  SetDlgItemInt(dialog, IDC_FONT_POINTS, static_cast<UINT>(settings_.font_points), FALSE);
  CheckDlgButton(dialog, IDC_LINE_NUMBERS, settings_.line_numbers ? BST_CHECKED : BST_UNCHECKED);
  CheckDlgButton(dialog, IDC_COLOURS, settings_.colours ? BST_CHECKED : BST_UNCHECKED);
}

int STDMETHODCALLTYPE EditorPage::Command(HWND, int, int) {
  return 0;
}

IIdeString* STDMETHODCALLTYPE EditorPage::GetHelpText(int control) {
  switch (control) {
    case IDC_TAB_WIDTH:
      return handOut(live_, "How many characters apart tab stops are");
    case IDC_FONT_POINTS:
      return handOut(live_, "The size of the letters, in points");
    case IDC_LINE_NUMBERS:
      return handOut(live_, "Numbers the lines in a margin left of the text");
    case IDC_COLOURS:
      return handOut(live_, "Colours comments, texts, keywords and directives of C++");
    default:
      return nullptr;
  }
}

int STDMETHODCALLTYPE EditorPage::Validate(HWND dialog) {
  const bool valid =
      checkNumber(dialog, IDC_TAB_WIDTH, kLeastTabWidth, kMostTabWidth, "The tab width") &&
      checkNumber(dialog, IDC_FONT_POINTS, kLeastFontPoints, kMostFontPoints, "The font size");
  return valid ? 1 : 0;
}

void STDMETHODCALLTYPE EditorPage::Store(HWND dialog) {
  settings_.tab_width = static_cast<int>(GetDlgItemInt(dialog, IDC_TAB_WIDTH, nullptr, FALSE));
  settings_.font_points = static_cast<int>(GetDlgItemInt(dialog, IDC_FONT_POINTS, nullptr, FALSE));
  settings_.line_numbers = IsDlgButtonChecked(dialog, IDC_LINE_NUMBERS) == BST_CHECKED;
  settings_.colours = IsDlgButtonChecked(dialog, IDC_COLOURS) == BST_CHECKED;
}

}  // namespace workbench
