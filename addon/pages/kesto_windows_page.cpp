#include "addon/pages/kesto_windows_page.h"

#include "addon/ide/help_topics.h"
#include "addon/ide/project_client.h"
#include "addon/pages/page_ids.h"
#include "addon/rcgen/project_options.h"

namespace kesto {

KestoWindowsPage::KestoWindowsPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Kesto Windows", "Set Kesto Windows options",
                    kHelpPageKestoWindows) {}

void KestoWindowsPage::exchange(PageExchange& controls) {
  project_.meet(controls);
  project_.flag(controls, WINDOWS_CLASSES, "Enable/Disable Kesto Windows file generation",
                rcgenProjectOptions.dialog_classes.value);
  project_.flag(controls, WINDOWS_VERSIONS, "Enable/Disable version file generation",
                rcgenProjectOptions.version_stamping.value);
}

void KestoWindowsPage::stored(HWND) {
  if (project_.isOpen()) {
    saveProjectOptions();
  }
}

}  // namespace kesto
