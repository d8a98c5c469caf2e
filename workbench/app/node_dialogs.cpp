#include "workbench/app/node_dialogs.h"

#include "workbench/project/project_tree.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/dialog.h"

namespace workbench {
namespace {

constexpr WPARAM kLongestField = 500;  // characters

class NodeDialog final : public Dialog {
 public:
  NodeDialog(bool is_new, NodeFields& fields) : is_new_(is_new), fields_(fields) {}

 private:
  void fill() override {
    if (is_new_) {
      SetWindowTextA(window(), "Add a target or group");
    }
    for (const int id : {IDC_NODE_NAME, IDC_NODE_DESCRIPTION, IDC_NODE_INCLUDE, IDC_NODE_SOURCE}) {
      SendMessageA(item(id), EM_LIMITTEXT, kLongestField, 0);
    }
    for (const char* type : {".exe", ".dll", ".lib", "Group", ProjectTree::kFolderType,
                             ProjectTree::kSourcePoolType, ProjectTree::kDeliveryType}) {
      SendMessageA(item(IDC_NODE_TYPE), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(type));
    }
    setText(IDC_NODE_NAME, fields_.name);
    setText(IDC_NODE_TYPE, fields_.type);
    setText(IDC_NODE_DESCRIPTION, fields_.description);
    setText(IDC_NODE_INCLUDE, fields_.include);
    setText(IDC_NODE_SOURCE, fields_.source);
    EnableWindow(item(IDC_NODE_TYPE), is_new_ ? TRUE : FALSE);
    typeChanged(fields_.type);
  }
  void command(int control, int notification) override {
    if (control == IDC_NODE_TYPE && notification == CBN_EDITCHANGE) {
      typeChanged(text(IDC_NODE_TYPE));
    } else if (control == IDC_NODE_TYPE && notification == CBN_SELCHANGE) {
      // The field shows the choice only later.
      char type[20] = {};
      const auto chosen = static_cast<WPARAM>(SendMessageA(item(control), CB_GETCURSEL, 0, 0));
      SendMessageA(item(control), CB_GETLBTEXT, chosen, reinterpret_cast<LPARAM>(type));
      typeChanged(type);
    }
  }
  // A container of deliveries goes by one name.
  void typeChanged(const std::string& type) {
    const bool named = type == ProjectTree::kDeliveryType;
    if (named) {
      setText(IDC_NODE_NAME, type);
    } else if (IsWindowEnabled(item(IDC_NODE_NAME)) == 0) {
      setText(IDC_NODE_NAME, "");
    }
    EnableWindow(item(IDC_NODE_NAME), named ? FALSE : TRUE);
  }
  bool accept() override {
    if (text(IDC_NODE_NAME).empty()) {
      MessageBeep(MB_ICONWARNING);
      SetFocus(item(IDC_NODE_NAME));
      return false;
    }
    fields_ = {text(IDC_NODE_NAME), text(IDC_NODE_TYPE), text(IDC_NODE_DESCRIPTION),
               text(IDC_NODE_INCLUDE), text(IDC_NODE_SOURCE)};
    return true;
  }

  bool is_new_;
  NodeFields& fields_;
};

class BuildDialog final : public Dialog {
 public:
  explicit BuildDialog(std::string& command) : command_(command) {}

 private:
  void fill() override {
    SendMessageA(item(IDC_BUILD_COMMAND), EM_LIMITTEXT, kLongestField, 0);
    setText(IDC_BUILD_COMMAND, command_);
  }
  bool accept() override {
    command_ = text(IDC_BUILD_COMMAND);
    return true;
  }

  std::string& command_;
};

}  // namespace

bool askNode(HWND owner, bool is_new, NodeFields* fields) {
  return NodeDialog(is_new, *fields).run(owner, IDD_NODE) == IDOK;
}

bool askBuild(HWND owner, std::string* command) {
  return BuildDialog(*command).run(owner, IDD_BUILD) == IDOK;
}

}  // namespace workbench
