#include "addon/pages/completion_page.h"

#include <commdlg.h>

#include <algorithm>

#include "addon/completion/completion_engine.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/path.h"
#include "addon/ide/gdi_handles.h"
#include "addon/ide/help_topics.h"
#include "addon/pages/page_ids.h"

namespace kesto {

namespace {

constexpr int kRowMargin = 8;  // pixels

// Empty when none was chosen.
std::string askForFile(HWND owner, const char* title) {
  char path[kPathLimit + 1] = "";
  OPENFILENAMEA info = {};
  info.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
  info.hwndOwner = owner;
  info.lpstrFilter = "Any file\0*.*\0";
  info.lpstrFile = path;
  info.nMaxFile = sizeof path;
  info.lpstrTitle = title;
  // The project's folder stays the current one.
  info.Flags =
      OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST;
  return GetOpenFileNameA(&info) != FALSE ? path : "";
}

// Whether the page is still there, after a dialog or a box: the session may have ended.
bool isStillOpen(HWND dialog) {
  return IsWindow(dialog) != FALSE && completionEngine != nullptr;
}

int widthOf(HWND list, const std::string& text) {
  const WindowDc dc(list);
  const Selection font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageA(list, WM_GETFONT, 0, 0)));
  SIZE size = {};
  GetTextExtentPoint32A(dc.get(), text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

int selectedRow(HWND dialog) {
  return static_cast<int>(SendDlgItemMessageA(dialog, PAGE_KEYWORD_FILES, LB_GETCURSEL, 0, 0));
}

void enableRemoving(HWND dialog) {
  EnableWindow(GetDlgItem(dialog, PAGE_KEYWORDS_REMOVE), selectedRow(dialog) >= 0 ? TRUE : FALSE);
}

}  // namespace

CompletionPage::CompletionPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Keyword completion", "Set keyword completion options",
                    kHelpPageCompletion) {}

void CompletionPage::exchange(PageExchange& controls) {
  if (completionEngine == nullptr) {
    return;
  }
  CompletionSettings& settings = completionEngine->settings;
  controls.flag(PAGE_COMPLETION_ENABLED, "Activate keyword completion", settings.enabled.value);
  key_.exchange(controls, PAGE_COMPLETION_KEY, "Choose a new key code", settings.key_code,
                settings.key_text);
  controls.plain(PAGE_KEYWORD_FILES, "The keyword files, in the order in which they are read");
  controls.plain(PAGE_KEYWORDS_ADD, "Add a new keyword file");
  controls.plain(PAGE_KEYWORDS_EXTRACT, "Extract a keyword file from a text file and add it");
  controls.plain(PAGE_KEYWORDS_REMOVE, "Remove selected keyword file");
  if (controls.fills()) {
    files_ = settings.files.value;
  } else if (controls.stores()) {
    settings.files.value = files_;
  }
}

void CompletionPage::filled(HWND dialog) {
  show(dialog, -1);
}

bool CompletionPage::command(HWND dialog, int control, int notification) {
  if (control == PAGE_KEYWORD_FILES && notification == LBN_SELCHANGE) {
    enableRemoving(dialog);
    return true;
  }
  if (notification != BN_CLICKED) {
    return false;
  }
  switch (control) {
    case PAGE_COMPLETION_KEY:
      if (key_.choose(dialog, control)) {
        markChanged();
      }
      return true;
    case PAGE_KEYWORDS_ADD:
      addFile(dialog);
      return true;
    case PAGE_KEYWORDS_EXTRACT:
      extractFile(dialog);
      return true;
    case PAGE_KEYWORDS_REMOVE:
      removeFile(dialog);
      return true;
    default:
      return false;
  }
}

void CompletionPage::addFile(HWND dialog) {
  const std::string path = askForFile(dialog, "Open a keyword file...");
  if (!path.empty() && isStillOpen(dialog)) {
    list(dialog, path);
  }
}

void CompletionPage::extractFile(HWND dialog) {
  const std::string source = askForFile(dialog, "Open a source file...");
  if (source.empty() || !isStillOpen(dialog)) {
    return;
  }
  const String path = extractKeywordsOf(dialog, source.c_str());
  if (!path.empty() && isStillOpen(dialog)) {
    list(dialog, std::string(path.view()));
  }
}

void CompletionPage::removeFile(HWND dialog) {
  const int row = selectedRow(dialog);
  if (row < 0 || row >= static_cast<int>(files_.size())) {
    return;
  }
  const int answer = showMessage(dialog, "Ok to remove this file ?", "Warning",
                                 kMessageYesNo | kMessageIconQuestion);
  if (answer != kAnswerYes || !isStillOpen(dialog)) {
    return;
  }
  files_.erase(files_.begin() + row);
  markChanged();
  show(dialog, std::min(row, static_cast<int>(files_.size()) - 1));
  // A greyed button would keep the focus and the keys with it.
  if (files_.empty()) {
    SetFocus(GetDlgItem(dialog, PAGE_KEYWORDS_ADD));
  }
}

void CompletionPage::list(HWND dialog, const std::string& path) {
  auto listed = std::find_if(files_.begin(), files_.end(), [&path](const std::string& file) {
    return equalIgnoringCase(file, path);
  });
  if (listed == files_.end()) {
    listed = files_.insert(files_.end(), path);
  }
  // One that is there already may have another text by now.
  markChanged();
  show(dialog, static_cast<int>(listed - files_.begin()));
}

void CompletionPage::show(HWND dialog, int selected) {
  const HWND list = GetDlgItem(dialog, PAGE_KEYWORD_FILES);
  SendMessageA(list, LB_RESETCONTENT, 0, 0);
  int widest = 0;
  for (const std::string& file : files_) {
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(file.c_str()));
    widest = std::max(widest, widthOf(list, file));
  }
  SendMessageA(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest + kRowMargin), 0);
  SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
  enableRemoving(dialog);
}

void CompletionPage::stored(HWND) {
  if (completionEngine != nullptr) {
    completionEngine->settings.section.write();
    completionEngine->load();
  }
}

}  // namespace kesto
