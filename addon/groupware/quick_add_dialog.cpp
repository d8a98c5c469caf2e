#include "addon/groupware/quick_add_dialog.h"

#include <windows.h>

#include <iterator>
#include <string>
#include <vector>

#include "addon/foundation/message_box.h"
#include "addon/groupware/quick_add.h"
#include "addon/groupware/quick_add_ids.h"
#include "addon/ide/dialog_place.h"
#include "addon/ide/environment.h"
#include "addon/ide/find_window.h"
#include "addon/ide/help_file.h"
#include "addon/ide/project_client.h"
#include "addon/ide/project_nodes.h"

namespace kesto {
namespace {

// From its name to the levels, and one number more that a template may use.
constexpr int kLastOfContainer = 115;

// The radio buttons in the order of the levels.
constexpr int kLevels[] = {QUICK_ADD_SIBLING, QUICK_ADD_PARENT, QUICK_ADD_ROOT};

struct Opened {
  unsigned current;
  unsigned added = 0;
};

bool isChecked(HWND dialog, int id) {
  return IsDlgButtonChecked(dialog, id) == BST_CHECKED;
}

std::string textOf(HWND dialog, int id, std::size_t limit) {
  std::vector<char> text(limit + 1);
  GetDlgItemTextA(dialog, id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

QuickAddFields fieldsOf(HWND dialog) {
  QuickAddFields fields;
  fields.name = textOf(dialog, QUICK_ADD_NAME, kNodeNameLimit);
  fields.in_container = isChecked(dialog, QUICK_ADD_NEW);
  fields.container = textOf(dialog, QUICK_ADD_CONTAINER, kContainerNameLimit);
  for (std::size_t i = 0; i < std::size(kLevels); ++i) {
    if (isChecked(dialog, kLevels[i])) {
      fields.level = static_cast<ContainerLevel>(i);
    }
  }
  return fields;
}

void enableContainer(HWND dialog) {
  const BOOL enabled = isChecked(dialog, QUICK_ADD_NEW) ? TRUE : FALSE;
  for (int id = QUICK_ADD_CONTAINER; id <= kLastOfContainer; ++id) {
    EnableWindow(GetDlgItem(dialog, id), enabled);
  }
}

void fill(HWND dialog) {
  SendDlgItemMessageA(dialog, QUICK_ADD_NAME, EM_LIMITTEXT, kNodeNameLimit, 0);
  SendDlgItemMessageA(dialog, QUICK_ADD_CONTAINER, EM_LIMITTEXT, kContainerNameLimit, 0);
  CheckRadioButton(dialog, QUICK_ADD_SIBLING, QUICK_ADD_ROOT, QUICK_ADD_PARENT);
  enableContainer(dialog);
  centreOnOwner(dialog);
}

void focusOn(HWND dialog, int id) {
  SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, id)), TRUE);
}

QuickAddResult addAsked(unsigned current, const QuickAddFields& fields) {
  ProjectNodes nodes;
  return quickAdd(nodes, nodes.exists(current) ? current : 0, fields);
}

void accept(HWND dialog, Opened& opened) {
  const QuickAddResult result = addAsked(opened.current, fieldsOf(dialog));
  const char* refusal = refusalText(result.refusal);
  if (refusal == nullptr) {
    opened.added = result.node;
    EndDialog(dialog, IDOK);
    return;
  }
  showMessage(dialog, refusal, "Warning", kMessageOk);
  if (!IsWindow(dialog)) {
    return;
  }
  if (result.refusal == QuickAddRefusal::kNoName) {
    focusOn(dialog, QUICK_ADD_NAME);
  } else if (result.refusal == QuickAddRefusal::kNoContainerName) {
    focusOn(dialog, QUICK_ADD_CONTAINER);
  }
}

bool command(HWND dialog, int id, Opened& opened) {
  switch (id) {
    case QUICK_ADD_NEW:
      enableContainer(dialog);
      return true;
    case IDOK:
      accept(dialog, opened);
      return true;
    case IDCANCEL:
      EndDialog(dialog, IDCANCEL);
      return true;
    default:
      return false;
  }
}

INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    fill(dialog);
    return TRUE;
  }
  if (showHelpOn(message, kHelpQuickAdd)) {
    return TRUE;
  }
  if (message != WM_COMMAND) {
    return FALSE;
  }
  Opened* opened = reinterpret_cast<Opened*>(GetWindowLongPtrA(dialog, DWLP_USER));
  return opened != nullptr && command(dialog, LOWORD(wParam), *opened) ? TRUE : FALSE;
}

}  // namespace

void showQuickAdd(unsigned current) {
  if (addonEnvironment == nullptr) {
    return;
  }
  Opened opened = {current};
  DialogBoxParamA(addonEnvironment->instance, "QuickAdd", findFrame(), procedure,
                  reinterpret_cast<LPARAM>(&opened));
  if (opened.added != 0 && projectTestA != nullptr) {
    projectTestA->tellAdded(opened.added);
  }
}

}  // namespace kesto
