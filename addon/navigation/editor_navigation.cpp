#include "addon/navigation/editor_navigation.h"

#include "addon/ide/file_text.h"
#include "addon/ide/status_line.h"
#include "addon/navigation/menu_plan.h"
#include "addon/navigation/popup_menu.h"
#include "addon/navigation/source_scanner.h"

namespace kesto {

EditorNavigation* editorNavigation = nullptr;

EditorNavigation::EditorNavigation(HWND owner, bool new_shell)
    : owner_(owner), geometry_(buttonGeometry(new_shell)) {
  settings.section.read();
  bitmap_names_[kFunctionsButton] = "bmpFUNC";
  bitmap_names_[kIncludesButton] = "bmpINC";
  bitmap_names_[kQuickFindButton] = "bmpQKFIND";
  for (String& name : bitmap_names_) {
    name += "95";
  }
}

EditorNavigation::~EditorNavigation() {
  settings.section.write();
}

HMENU EditorNavigation::scanFunctions(const char* file) {
  kesto::scanFunctions(readFileText(file).view(), functions_);
  if (settings.sorted.value != 0) {
    sortFunctions(functions_);
  }
  if (functions_.count() == 0) {
    soundBeep();
    showStatus("No functions or methods detected !");
    return nullptr;
  }
  return createPopup(planFunctionsMenu(functions_, settings.size.value));
}

HMENU EditorNavigation::scanIncludes(const char* file) {
  kesto::scanIncludes(readFileText(file).view(), includes_);
  if (includes_.count() == 0) {
    showStatus("No include files detected !");
    return nullptr;
  }
  return createPopup(planIncludesMenu(includes_));
}

const Fnc* EditorNavigation::functionAt(int index) const {
  return index >= 0 && index < functions_.count() ? functions_.at(index) : nullptr;
}

const char* EditorNavigation::includeAt(int index) const {
  return index >= 0 && index < includes_.count() ? includes_.at(index)->text() : nullptr;
}

}  // namespace kesto
