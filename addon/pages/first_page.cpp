#include "addon/pages/first_page.h"

#include "addon/ide/environment.h"
#include "addon/ide/help_file.h"
#include "addon/pages/page_ids.h"

namespace kesto {

FirstPage::FirstPage(int dialog_id)
    : AddonPageBase(dialog_id, kFirstPageKind, "Kesto AddOn for Borland C++",
                    "Set general Kesto AddOn options", kHelpPageKesto) {}

void FirstPage::exchange(PageExchange& controls) {
  controls.plain(PAGE_SYSTEM, "The system that the IDE runs on");
  if (controls.fills()) {
    SetDlgItemTextA(controls.dialog(), PAGE_SYSTEM, addonEnvironment->os_description);
  }
}

}  // namespace kesto
