#include "workbench/app/options_dialog.h"

#include <algorithm>
#include <string>

#include "workbench/windows/command_ids.h"
#include "workbench/windows/dialog.h"
#include "workbench/windows/page_template.h"

namespace workbench {
namespace {

constexpr UINT_PTR kHelpTimer = 1;
constexpr UINT kHelpInterval = 200;  // milliseconds

// Takes over the reference.
std::string takeText(IIdeString* text) {
  std::string result;
  if (text != nullptr) {
    result = text->GetText();
    text->Release();
  }
  return result;
}

INT_PTR CALLBACK pageProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_INITDIALOG) {
    SetWindowLongA(window, DWL_USER, static_cast<LONG>(l));
    return FALSE;
  }
  auto* page = reinterpret_cast<IMpdPage*>(GetWindowLongA(window, DWL_USER));
  return message == WM_COMMAND && page != nullptr ? page->Command(window, LOWORD(w), HIWORD(w))
                                                  : FALSE;
}

class OptionsDialog final : public Dialog {
 public:
  explicit OptionsDialog(const std::vector<OptionsTopic>& topics) : topics_(topics) {
    windows_.resize(topics.size());
  }

 private:
  void fill() override {
    for (const OptionsTopic& topic : topics_) {
      const std::string name = (topic.indented ? "    " : "") + takeText(topic.page->GetTitle());
      SendMessageA(item(IDC_OPTIONS_TOPICS), LB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(name.c_str()));
    }
    SendMessageA(item(IDC_OPTIONS_TOPICS), LB_SETCURSEL, 0, 0);
    show(0);
    SetTimer(window(), kHelpTimer, kHelpInterval, nullptr);
  }

  void command(int control, int notification) override {
    if (control == IDC_OPTIONS_TOPICS && notification == LBN_SELCHANGE) {
      const LRESULT at = SendMessageA(item(IDC_OPTIONS_TOPICS), LB_GETCURSEL, 0, 0);
      if (at != LB_ERR) {
        show(static_cast<std::size_t>(at));
      }
    } else if (control == IDHELP && shown_ < topics_.size()) {
      topics_[shown_].page->ShowHelp();
    }
  }

  void show(std::size_t index) {
    if (shown_ < windows_.size() && windows_[shown_] != nullptr) {
      ShowWindow(windows_[shown_], SW_HIDE);
    }
    shown_ = index;
    IMpdPage* page = topics_[index].page;
    if (windows_[index] == nullptr) {
      windows_[index] = createPage(page);
      if (windows_[index] != nullptr) {
        grow(windows_[index]);
        page->Fill(windows_[index]);
      }
    }
    const std::string description = takeText(page->GetDescription());
    setText(IDC_OPTIONS_TITLE, description.empty() ? takeText(page->GetTitle()) : description);
    help_control_ = 0;
    setText(IDC_OPTIONS_HELP_TEXT, windows_[index] == nullptr ? "This page cannot be shown." : "");
    ShowWindow(windows_[index], SW_SHOW);
  }

  HWND createPage(IMpdPage* page) {
    std::vector<char> data;
    if (!childTemplate(page->GetModule(), page->GetDialogId(), &data)) {
      return nullptr;
    }
    HWND created = CreateDialogIndirectParamA(page->GetModule(),
                                              reinterpret_cast<LPCDLGTEMPLATEA>(data.data()),
                                              window(), pageProc, reinterpret_cast<LPARAM>(page));
    RECT place = {};
    GetWindowRect(item(IDC_OPTIONS_PLACE), &place);
    MapWindowPoints(nullptr, window(), reinterpret_cast<POINT*>(&place), 2);
    // Behind the topics in the order of Tab.
    SetWindowPos(created, item(IDC_OPTIONS_PLACE), place.left, place.top, 0, 0, SWP_NOSIZE);
    return created;
  }

  // Makes room for a page larger than its place.
  void grow(HWND page) {
    RECT place = {};
    RECT size = {};
    GetWindowRect(item(IDC_OPTIONS_PLACE), &place);
    GetWindowRect(page, &size);
    const int dx = std::max(0L, size.right - size.left - (place.right - place.left));
    const int dy = std::max(0L, size.bottom - size.top - (place.bottom - place.top));
    if (dx == 0 && dy == 0) {
      return;
    }
    stretch(window(), 0, 0, dx, dy);
    stretch(item(IDC_OPTIONS_TOPICS), 0, 0, 0, dy);
    stretch(item(IDC_OPTIONS_TITLE), 0, 0, dx, 0);
    stretch(item(IDC_OPTIONS_PLACE), 0, 0, dx, dy);
    stretch(item(IDC_OPTIONS_HELP_TEXT), 0, dy, dx, 0);
    for (const int button : {IDOK, IDCANCEL, IDHELP}) {
      stretch(item(button), dx, dy, 0, 0);
    }
    RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  }

  // Moves a window and changes its size, in pixels.
  static void stretch(HWND target, int right, int down, int wider, int higher) {
    RECT box = {};
    GetWindowRect(target, &box);
    const int width = box.right - box.left + wider;
    const int height = box.bottom - box.top + higher;
    if ((GetWindowLongA(target, GWL_STYLE) & WS_CHILD) != 0) {
      MapWindowPoints(nullptr, GetParent(target), reinterpret_cast<POINT*>(&box), 2);
    }
    SetWindowPos(target, nullptr, box.left + right, box.top + down, width, height, SWP_NOZORDER);
  }

  void timer() override {
    HWND focus = GetFocus();
    const int control =
        shown_ < windows_.size() && focus != nullptr && GetParent(focus) == windows_[shown_]
            ? GetDlgCtrlID(focus)
            : 0;
    if (control != help_control_) {
      help_control_ = control;
      setText(IDC_OPTIONS_HELP_TEXT,
              control == 0 ? "" : takeText(topics_[shown_].page->GetHelpText(control)));
    }
  }

  bool accept() override {
    for (std::size_t i = 0; i < topics_.size(); ++i) {
      if (!toStore(i)) {
        continue;
      }
      const bool valid = topics_[i].page->Validate(windows_[i]) != 0;
      // A page may show a box, and the program may close behind it.
      if (IsWindow(window()) == 0) {
        return false;
      }
      if (!valid) {
        SendMessageA(item(IDC_OPTIONS_TOPICS), LB_SETCURSEL, i, 0);
        show(i);
        return false;
      }
    }
    for (std::size_t i = 0; i < topics_.size(); ++i) {
      if (toStore(i)) {
        topics_[i].page->Store(windows_[i]);
      }
    }
    return true;
  }

  bool toStore(std::size_t index) const {
    return windows_[index] != nullptr && topics_[index].page->IsChanged() != 0;
  }

  const std::vector<OptionsTopic>& topics_;
  std::vector<HWND> windows_;  // made when first shown
  std::size_t shown_ = static_cast<std::size_t>(-1);
  int help_control_ = 0;
};

}  // namespace

bool editOptionPages(HWND owner, const std::vector<OptionsTopic>& topics) {
  return OptionsDialog(topics).run(owner, IDD_OPTIONS) == IDOK;
}

}  // namespace workbench
