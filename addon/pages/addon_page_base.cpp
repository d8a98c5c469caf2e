#include "addon/pages/addon_page_base.h"

#include "addon/foundation/message_box.h"
#include "addon/ide/access.h"
#include "addon/ide/environment.h"
#include "addon/ide/help_file.h"

namespace kesto {

AddonPageBase::AddonPageBase(int dialog_id, int kind, const char* title, const char* description,
                             DWORD topic)
    : dialog_id_(dialog_id), kind_(kind), title_(title), description_(description), topic_(topic) {}

IIdeString* STDMETHODCALLTYPE AddonPageBase::GetTitle() {
  return makeIdeString(title_).detach();
}

HINSTANCE STDMETHODCALLTYPE AddonPageBase::GetModule() {
  return addonEnvironment->instance;
}

IIdeString* STDMETHODCALLTYPE AddonPageBase::GetDescription() {
  return makeIdeString(description_).detach();
}

void STDMETHODCALLTYPE AddonPageBase::Fill(HWND dialog) {
  filling_ = true;
  PageExchange controls = PageExchange::filling(dialog);
  exchange(controls);
  filled(dialog);
  filling_ = false;
  changed_ = false;
}

int STDMETHODCALLTYPE AddonPageBase::Command(HWND dialog, int control, int notification) {
  // What filling itself brings about is no change of a person's.
  if (filling_) {
    return 0;
  }
  PageExchange controls = PageExchange::changing(control, notification);
  exchange(controls);
  changed_ = changed_ || controls.changed();
  return command(dialog, control, notification) ? 1 : 0;
}

IIdeString* STDMETHODCALLTYPE AddonPageBase::GetHelpText(int control) {
  PageExchange controls = PageExchange::helping(control);
  exchange(controls);
  return controls.helpText() != nullptr ? makeIdeString(controls.helpText()).detach() : nullptr;
}

void STDMETHODCALLTYPE AddonPageBase::ShowHelp() {
  if (helpFile != nullptr) {
    helpFile->showTopic(topic_);
  }
}

void STDMETHODCALLTYPE AddonPageBase::Store(HWND dialog) {
  PageExchange controls = PageExchange::storing(dialog);
  exchange(controls);
  changed_ = false;
  stored(dialog);
}

bool AddonPageBase::requireRange(HWND dialog, int control, int least, int most,
                                 const char* refusal) {
  int value = 0;
  if (controlNumber(dialog, control, value) && value >= least && value <= most) {
    return true;
  }
  showMessage(dialog, refusal, "Kesto Addon error", kMessageIconHand);
  // The IDE may have closed behind the box.
  if (IsWindow(dialog) != 0) {
    SetFocus(GetDlgItem(dialog, control));
  }
  return false;
}

}  // namespace kesto
