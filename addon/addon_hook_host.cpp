#include "addon/addon_hook_host.h"

#include "addon/behaviours/general_behaviours.h"
#include "addon/completion/completion_engine.h"
#include "addon/foundation/key_code.h"
#include "addon/ide/completion_source.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/quick_find.h"
#include "addon/topbar/top_bar.h"

namespace kesto {
namespace {

bool writesCharacter(unsigned code) {
  constexpr UINT kToCharacter = 2;
  return code < kKeyCodeAlt && MapVirtualKeyA(virtualKeyOf(code), kToCharacter) != 0;
}

}  // namespace

bool AddonHookHost::navigationEnabled() const {
  return editorNavigation != nullptr && editorNavigation->enabled();
}

int AddonHookHost::titleButtonAt(HWND editor, POINT& point) const {
  return editorNavigation != nullptr ? editorNavigation->hitTest(editor, point) : -1;
}

unsigned AddonHookHost::completionKey() const {
  if (completionEngine == nullptr || !completionEngine->enabled()) {
    return 0;
  }
  // A key that writes, as the one that is set at first, goes on writing where nothing can
  // be completed.
  const unsigned code = completionEngine->keyCode();
  return completionSource != nullptr || !writesCharacter(code) ? code : 0;
}

unsigned AddonHookHost::searchKey(int search) const {
  return quickFind != nullptr ? quickFind->key(static_cast<Search>(search)) : 0;
}

bool AddonHookHost::barFollowsFrame() const {
  return topBar != nullptr && topBar->enabled() && topBar->hidesWithIde();
}

bool AddonHookHost::barWatchesProjectView() const {
  return topBar != nullptr && topBar->enabled() && topBar->hidesWithView() &&
         topBar->construction() < BarConstruction::kNoMenu;
}

bool AddonHookHost::barStaysOnTop() const {
  return topBar != nullptr && topBar->alwaysOnTop();
}

void AddonHookHost::resetAutoSave() {
  if (generalBehaviours != nullptr) {
    generalBehaviours->resetAutoSave();
  }
}

}  // namespace kesto
