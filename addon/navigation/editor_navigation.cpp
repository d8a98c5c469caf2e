#include "addon/navigation/editor_navigation.h"

#include "addon/foundation/settings_store.h"
#include "addon/ide/file_text.h"
#include "addon/ide/status_line.h"
#include "addon/navigation/menu_plan.h"
#include "addon/navigation/popup_menu.h"
#include "addon/navigation/source_scanner.h"

namespace kesto {

EditorNavigation* editorNavigation = nullptr;

namespace {

constexpr char kSection[] = "Menus";

}  // namespace

EditorNavigation::EditorNavigation(HWND owner, bool new_shell)
    : owner_(owner),
      enabled_(0),
      size_(0),
      sorted_(settings().readInteger(kSection, "Sorted", 1)),
      geometry_(buttonGeometry(new_shell)) {
  size_ = settings().readInteger(kSection, "Size", 50);
  enabled_ = settings().readInteger(kSection, "Enabled", 1);
  bitmap_names_[kFunctionsButton] = "bmpFUNC";
  bitmap_names_[kIncludesButton] = "bmpINC";
  bitmap_names_[kQuickFindButton] = "bmpQKFIND";
  for (String& name : bitmap_names_) {
    name += "95";
  }
}

EditorNavigation::~EditorNavigation() {
  settings().writeInteger(kSection, "Sorted", sorted_);
  settings().writeInteger(kSection, "Size", size_);
  settings().writeInteger(kSection, "Enabled", enabled_);
}

HMENU EditorNavigation::scanFunctions(const char* file) {
  kesto::scanFunctions(readFileText(file).view(), functions_);
  if (sorted_ != 0) {
    sortFunctions(functions_);
  }
  if (functions_.count() == 0) {
    soundBeep();
    showStatus("No functions or methods detected !");
    return nullptr;
  }
  return createPopup(planFunctionsMenu(functions_, size_));
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
