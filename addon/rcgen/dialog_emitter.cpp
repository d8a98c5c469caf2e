#include "addon/rcgen/dialog_emitter.h"

#include "addon/rcgen/text_format.h"

namespace kesto {

namespace {

using Items = std::span<const RcMenuItem>;

bool beginsMenu(Items items, std::size_t i) {
  return i == 0 || items[i].menu.view() != items[i - 1].menu.view();
}

bool isOfDialog(const RcMenuItem& item, const RcDialog& dialog) {
  return !dialog.menu.view().empty() && item.menu.view() == dialog.menu.view();
}

// What the button ends the dialog with; nothing for another control.
std::string_view ending(const RcControl& control) {
  const std::string_view id = control.id.view();
  if (id == "IDOK") {
    return "  End(1) ;\n";
  }
  return id == "IDCANCEL" ? "  End(0) ;\n" : "";
}

}  // namespace

// The last declaration of the last macro has no ";": whoever uses the macro writes it.
void DialogEmitter::menuMacros(Items items) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (beginsMenu(items, i)) {
      appendFormat(header_, "\n\n#define CallBar_%s() \\\n", items[i].menu.view());
    }
    appendFormat(header_, "if (code==%s) { mnu%s() ; return(1) ; };\\\n", items[i].code.view(),
                 items[i].member.view());
  }
  header_ += "\n\n";
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) {
      header_ += ";\\\n";
    }
    if (beginsMenu(items, i)) {
      appendFormat(header_, "\n\n#define Menubar_%s \\\n", items[i].menu.view());
    }
    appendFormat(header_, "virtual void mnu%s() ", items[i].member.view());
  }
  header_ += "\n\n";
}

void DialogEmitter::openDialog(std::string_view name) {
  appendFormat(header_, "\n/*\n%s()\n*/\nclass rc%s : public Dialog\n{\n  public :\n", name, name);
}

void DialogEmitter::closeDialog(const RcDialog& dialog, Items items) {
  initialisation(dialog);
  controlStubs(dialog);
  menuStubs(dialog, items);
  commandSwitch(dialog, items);
  notificationSwitch(dialog);
  header_ += "} ;\n";
  if (drain_ != nullptr) {
    drain_->dialogWritten();
  }
}

void DialogEmitter::initialisation(const RcDialog& dialog) {
  const std::string_view name = dialog.name.view();
  for (const RcControl& control : dialog.controls.entries()) {
    appendFormat(header_, "    %s %s ;\n", control.framework_class.view(), control.member.view());
  }
  header_ += "  public :\n    void rcInit() ;\n";
  appendFormat(implementation_, "void rc%s::rcInit()\n{\n", name);
  for (const RcControl& control : dialog.controls.entries()) {
    appendFormat(implementation_, "  %s.Get(this, %s) ;\n", control.member.view(),
                 control.id.view());
  }
  implementation_ += "}\n";
  header_ += "    char *Name() ;\n";
  appendFormat(implementation_, "\nchar *rc%s::Name()\n{\n  return(\"%s\") ;\n}\n", name, name);
}

void DialogEmitter::controlStubs(const RcDialog& dialog) {
  const std::string_view name = dialog.name.view();
  for (const RcControl& control : dialog.controls.entries()) {
    const std::string_view member = control.member.view();
    if (isNotificationControl(control)) {
      // Declared and defined with two names of the parameter.
      appendFormat(header_, "    virtual int cmd%s(NMHDR *ndr) ;\n", member);
      appendFormat(implementation_,
                   "\n#pragma argsused\nint rc%s::cmd%s(NMHDR *hdr)\n{\n  return(0) ;\n}\n", name,
                   member);
      continue;
    }
    appendFormat(header_, "    virtual int cmd%s(int notify) ;\n", member);
    appendFormat(implementation_,
                 "\n#pragma argsused\nint rc%s::cmd%s(int notify)\n{\n%s  return(0) ;\n}\n", name,
                 member, ending(control));
  }
}

void DialogEmitter::menuStubs(const RcDialog& dialog, Items items) {
  for (const RcMenuItem& item : items) {
    if (isOfDialog(item, dialog)) {
      appendFormat(header_, "    virtual int mnu%s() ;\n", item.member.view());
      appendFormat(implementation_, "\nint rc%s::mnu%s()\n{\n  return(0) ;\n}\n",
                   dialog.name.view(), item.member.view());
    }
  }
}

void DialogEmitter::commandSwitch(const RcDialog& dialog, Items items) {
  header_ += "    int wmCommand(int id, int notify) ;\n";
  appendFormat(implementation_,
               "\n#pragma argsused\nint rc%s::wmCommand(int id, int notify)\n{\n"
               "  switch (id)\n  {\n",
               dialog.name.view());
  for (const RcControl& control : dialog.controls.entries()) {
    if (!isNotificationControl(control)) {
      appendFormat(implementation_, "    case %s : return(cmd%s(notify)) ;\n", control.id.view(),
                   control.member.view());
    }
  }
  for (const RcMenuItem& item : items) {
    if (isOfDialog(item, dialog)) {
      appendFormat(implementation_, "    case %s : return(mnu%s()) ;\n", item.code.view(),
                   item.member.view());
    }
  }
  implementation_ += "  }\n  return(Dialog::wmCommand(id, notify)) ;\n}\n\n";
}

void DialogEmitter::notificationSwitch(const RcDialog& dialog) {
  header_ += "    void wmNotify(NMHDR *hdr) ;\n";
  appendFormat(implementation_,
               "\n#pragma argsused\nvoid rc%s::wmNotify(NMHDR *hdr)\n{\n"
               "  switch (hdr->idFrom)\n  {\n",
               dialog.name.view());
  for (const RcControl& control : dialog.controls.entries()) {
    if (isNotificationControl(control)) {
      const bool is_tab = control.framework_class.view() == kTabControlClass;
      appendFormat(implementation_, "  case %s : %scmd%s(hdr) ; return ;\n", control.id.view(),
                   is_tab ? "if (hdr->code==TCN_SELCHANGE) " : "", control.member.view());
    }
  }
  implementation_ += "  }\n  Dialog::wmNotify(hdr) ;\n}\n\n";
}

}  // namespace kesto
