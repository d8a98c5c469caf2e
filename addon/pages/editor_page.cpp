#include "addon/pages/editor_page.h"

#include "addon/ide/help_topics.h"
#include "addon/ide/window_painting.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/quick_find.h"
#include "addon/pages/page_ids.h"

namespace kesto {

namespace {

constexpr int kLeastSize = 10;
constexpr int kMostSize = 99;

constexpr const char* kKeyHelp[kSearchCount] = {
    "Set shortkey for \"Find as function\"", "Set shortkey for \"Find as method\"",
    "Set shortkey for \"Find as class\"", "Set shortkey for \"Cross reference\""};
static_assert(PAGE_KEY_FUNCTION + kSearchCount - 1 == PAGE_KEY_CROSS);

}  // namespace

EditorPage::EditorPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Editor menu", "Set Top Editor Menu options",
                    kHelpPageEditor) {}

void EditorPage::exchange(PageExchange& controls) {
  if (editorNavigation == nullptr || quickFind == nullptr) {
    return;
  }
  if (controls.stores()) {
    was_enabled_ = editorNavigation->enabled();
    was_left_ = quickFind->leftSide();
  }
  exchangeMenus(controls);
  exchangeSearches(controls);
}

void EditorPage::exchangeMenus(PageExchange& controls) {
  MenuSettings& menus = editorNavigation->settings;
  controls.flag(PAGE_MENUS_ENABLED,
                "Activate function/class menu on right click in the editor title bar",
                menus.enabled.value);
  controls.flag(PAGE_MENUS_SORTED, "Sort function/class reference", menus.sorted.value);
  // Stands for nothing that is kept.
  controls.plain(PAGE_MENUS_SAVE, "Save buffer on menu popup");
  controls.number(PAGE_MENUS_SIZE, "Set size of one column in the editor menu", menus.size.value);
}

void EditorPage::exchangeSearches(PageExchange& controls) {
  QuickFindSettings& searches = quickFind->settings;
  controls.text(PAGE_FUNCTION_MASK, "Set filter for source research", searches.function_mask.value,
                searches.function_mask.limit);
  controls.text(PAGE_INCLUDE_MASK, "Set filter for include research", searches.include_mask.value,
                searches.include_mask.limit);
  controls.flag(PAGE_RECURSE, "Set option for recurse research", searches.recurse.value);
  int left_side = quickFind->leftSide() ? 1 : 0;
  controls.choice(PAGE_LEFT_SIDE, "Put buttons at the left side of the title bar", left_side, 1);
  controls.choice(PAGE_RIGHT_SIDE, "Put buttons at the right side of the title bar", left_side, 0);
  if (controls.stores()) {
    searches.left_side.value = left_side;
  }
  for (int i = 0; i < kSearchCount; ++i) {
    keys_[i].exchange(controls, PAGE_KEY_FUNCTION + i, kKeyHelp[i], searches.keys[i],
                      searches.key_texts[i]);
  }
}

bool EditorPage::command(HWND dialog, int control, int notification) {
  const bool is_key = control >= PAGE_KEY_FUNCTION && control <= PAGE_KEY_CROSS;
  if (!is_key || notification != BN_CLICKED) {
    return false;
  }
  if (keys_[control - PAGE_KEY_FUNCTION].choose(dialog, control)) {
    markChanged();
  }
  return true;
}

bool EditorPage::valid(HWND dialog) {
  return requireRange(dialog, PAGE_MENUS_SIZE, kLeastSize, kMostSize,
                      "Menu size must be between 10 and 99.");
}

void EditorPage::stored(HWND) {
  if (editorNavigation == nullptr || quickFind == nullptr) {
    return;
  }
  editorNavigation->settings.section.write();
  quickFind->settings.section.write();
  const bool enabled = editorNavigation->enabled();
  if (enabled != was_enabled_ || (enabled && quickFind->leftSide() != was_left_)) {
    repaintEditorFrames();
  }
}

}  // namespace kesto
