#include "workbench/app/edit_dialogs.h"

#include <cstdlib>

#include "workbench/windows/command_ids.h"
#include "workbench/windows/dialog.h"
#include "workbench/windows/names.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

class LineDialog final : public Dialog {
 public:
  LineDialog(int last_line, int& line) : last_line_(last_line), line_(line) {}

 private:
  void fill() override {
    setText(IDC_LINE_NUMBER, std::to_string(line_));
    setText(IDC_LINE_RANGE, "of " + std::to_string(last_line_));
    SendMessageA(item(IDC_LINE_NUMBER), EM_SETSEL, 0, -1);
  }
  bool accept() override {
    const long wanted = std::strtol(text(IDC_LINE_NUMBER).c_str(), nullptr, 10);
    if (wanted < 1) {
      MessageBeep(MB_ICONWARNING);
      return false;
    }
    line_ = wanted > last_line_ ? last_line_ : static_cast<int>(wanted);
    return true;
  }

  int last_line_;
  int& line_;
};

class FilesDialog final : public Dialog {
 public:
  FilesDialog(const std::string& folder, const std::vector<std::string>& files, std::string& path)
      : folder_(folder), files_(files), path_(path) {}

 private:
  std::string shown(const std::string& file) const {
    const bool inside =
        file.size() > folder_.size() + 1 && samePath(file.substr(0, folder_.size()), folder_);
    return inside ? file.substr(folder_.size() + (folder_.back() == '\\' ? 0 : 1)) : file;
  }

  void fill() override { list(); }

  void list() {
    const std::string wanted = foldCase(text(IDC_FILES_FILTER));
    HWND box = item(IDC_FILES_LIST);
    SendMessageA(box, WM_SETREDRAW, FALSE, 0);
    SendMessageA(box, LB_RESETCONTENT, 0, 0);
    int count = 0;
    for (std::size_t i = 0; i < files_.size(); ++i) {
      const std::string name = shown(files_[i]);
      if (foldCase(name).find(wanted) != std::string::npos) {
        const LRESULT at =
            SendMessageA(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
        SendMessageA(box, LB_SETITEMDATA, static_cast<WPARAM>(at), static_cast<LPARAM>(i));
        ++count;
      }
    }
    SendMessageA(box, LB_SETCURSEL, 0, 0);
    SendMessageA(box, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(box, nullptr, TRUE);
    std::string summary = std::to_string(count);
    summary += " of ";
    summary += std::to_string(files_.size());
    summary += files_.size() == 1 ? " file" : " files";
    setText(IDC_FILES_COUNT, summary);
  }

  void command(int control, int notification) override {
    if (control == IDC_FILES_FILTER && notification == EN_CHANGE) {
      list();
    } else if (control == IDC_FILES_LIST && notification == LBN_DBLCLK) {
      PostMessageA(window(), WM_COMMAND, IDOK, 0);
    }
  }

  bool accept() override {
    HWND box = item(IDC_FILES_LIST);
    const LRESULT at = SendMessageA(box, LB_GETCURSEL, 0, 0);
    if (at == LB_ERR) {
      return false;
    }
    const LRESULT index = SendMessageA(box, LB_GETITEMDATA, static_cast<WPARAM>(at), 0);
    path_ = files_[static_cast<std::size_t>(index)];
    return true;
  }

  const std::string& folder_;
  const std::vector<std::string>& files_;
  std::string& path_;
};

}  // namespace

bool askLine(HWND owner, int last_line, int* line) {
  return LineDialog(last_line, *line).run(owner, IDD_GO_TO_LINE) == IDOK;
}

bool askProjectFile(HWND owner, const std::string& folder, const std::vector<std::string>& files,
                    std::string* path) {
  return FilesDialog(folder, files, *path).run(owner, IDD_PROJECT_FILES) == IDOK;
}

}  // namespace workbench
