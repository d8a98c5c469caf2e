#include "workbench/app/find_dialogs.h"

#include "workbench/windows/command_ids.h"
#include "workbench/windows/dialog.h"

namespace workbench {
namespace {

constexpr WPARAM kLongestText = 255;  // characters

class FindDialog : public Dialog {
 public:
  explicit FindDialog(FindRequest& request) : request_(request) {}

 protected:
  void fill() override {
    list(IDC_FIND_TEXT, request_.searched);
    setText(IDC_FIND_TEXT, request_.search.text);
    check(IDC_FIND_CASE, request_.search.match_case);
    check(IDC_FIND_WORD, request_.search.whole_word);
    check(IDC_FIND_BACKWARD, request_.backward);
  }
  bool accept() override {
    request_.search = {text(IDC_FIND_TEXT), checked(IDC_FIND_CASE), checked(IDC_FIND_WORD)};
    request_.backward = checked(IDC_FIND_BACKWARD);
    request_.searched.add(request_.search.text);
    return !request_.search.text.empty();
  }

  void list(int control, const RecentTexts& texts) {
    SendMessageA(item(control), CB_LIMITTEXT, kLongestText, 0);
    SendMessageA(item(control), CB_RESETCONTENT, 0, 0);
    for (const std::string& each : texts.all()) {
      SendMessageA(item(control), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(each.c_str()));
    }
  }
  void check(int control, bool on) {
    CheckDlgButton(window(), control, on ? BST_CHECKED : BST_UNCHECKED);
  }

  FindRequest& request_;
};

class ReplaceDialog final : public FindDialog {
 public:
  ReplaceDialog(FindRequest& request, bool in_selection,
                const std::function<void(ReplaceWhat)>& replace)
      : FindDialog(request), in_selection_(in_selection), replace_(replace) {}

 private:
  void fill() override {
    FindDialog::fill();
    list(IDC_REPLACE_TEXT, request_.replaced);
    setText(IDC_REPLACE_TEXT, request_.replacement);
    check(IDC_REPLACE_SELECTED, in_selection_);
  }
  // OK replaces one and stays.
  bool accept() override {
    replace(ReplaceWhat::kNext);
    return false;
  }
  void command(int control, int) override {
    if (control == IDC_REPLACE_ALL) {
      replace(checked(IDC_REPLACE_SELECTED) ? ReplaceWhat::kAllSelected : ReplaceWhat::kAll);
    }
  }
  void replace(ReplaceWhat what) {
    if (!FindDialog::accept()) {
      return;
    }
    request_.replacement = text(IDC_REPLACE_TEXT);
    request_.replaced.add(request_.replacement);
    const HWND dialog = window();
    replace_(what);
    // A question may have been asked, and the program ended.
    if (IsWindow(dialog) != 0) {
      list(IDC_FIND_TEXT, request_.searched);
      list(IDC_REPLACE_TEXT, request_.replaced);
      setText(IDC_FIND_TEXT, request_.search.text);
      setText(IDC_REPLACE_TEXT, request_.replacement);
    }
  }

  bool in_selection_;
  const std::function<void(ReplaceWhat)>& replace_;
};

}  // namespace

bool askFind(HWND owner, FindRequest* request) {
  return FindDialog(*request).run(owner, IDD_FIND) == IDOK;
}

void askReplace(HWND owner, FindRequest* request, bool in_selection,
                const std::function<void(ReplaceWhat)>& replace) {
  request->backward = false;
  ReplaceDialog(*request, in_selection, replace).run(owner, IDD_REPLACE);
}

}  // namespace workbench
