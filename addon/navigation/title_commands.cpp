#include "addon/navigation/title_commands.h"

#include <string>

#include "addon/foundation/directory_listing.h"
#include "addon/foundation/full_path.h"
#include "addon/foundation/menu_text.h"
#include "addon/foundation/path.h"
#include "addon/ide/current_project.h"
#include "addon/ide/editor_operations.h"
#include "addon/ide/find_window.h"
#include "addon/ide/header_recorder.h"
#include "addon/ide/hook_set.h"
#include "addon/ide/koptions.h"
#include "addon/ide/open_file.h"
#include "addon/ide/search_watch.h"
#include "addon/ide/status_line.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/include_search.h"
#include "addon/navigation/popup_menu.h"
#include "addon/navigation/quick_find.h"

namespace kesto {
namespace {

constexpr UINT kEditDocumentationItem = 177;

// Shows the popup where the click was; false without one.
bool showAtClick(HWND bar, HMENU popup) {
  if (popup == nullptr) {
    return false;
  }
  const POINTS click = hookSet->target().click;
  trackPopup(bar, popup, {click.x, click.y});
  return true;
}

void appendSearch(HMENU popup, Search search, const char* text) {
  std::string item(text);
  if (quickFind != nullptr && quickFind->key(search) != 0) {
    item += '\t';
    item += menuText(quickFind->keyText(search));
  }
  AppendMenuA(popup, MF_STRING, kCommandFirstSearchKey + static_cast<UINT>(search), item.c_str());
}

// The include path of the file's node, empty without a project.
String includePathOf(const char* file) {
  String path;
  if (isProjectOpen()) {
    getOptionText(nodeOfFile(file), kOptionIncludePath, path);
  }
  return path;
}

bool ready() {
  return hookSet != nullptr && editorNavigation != nullptr;
}

}  // namespace

bool showFunctionsPopup(HWND bar) {
  return ready() && showAtClick(bar, editorNavigation->scanFunctions(hookSet->target().file));
}

bool showIncludesPopup(HWND bar) {
  return ready() && showAtClick(bar, editorNavigation->scanIncludes(hookSet->target().file));
}

bool showQuickFindPopup(HWND bar) {
  if (!ready()) {
    return false;
  }
  const HMENU popup = CreatePopupMenu();
  appendSearch(popup, Search::kFunction, "Find as function... ");
  appendSearch(popup, Search::kMethod, "Find as method... ");
  appendSearch(popup, Search::kClass, "Find as class... ");
  AppendMenuA(popup, MF_SEPARATOR, 0, nullptr);
  appendSearch(popup, Search::kCross, "Cross reference... ");
  return showAtClick(bar, popup);
}

bool showDocumentationPopup(HWND bar) {
  if (!ready()) {
    return false;
  }
  const HMENU popup = CreatePopupMenu();
  AppendMenuA(popup, MF_STRING, kEditDocumentationItem, "Edit Documentation");
  return showAtClick(bar, popup);
}

bool chooseFunction(int index) {
  activateFrame();
  if (ready()) {
    if (const Fnc* function = editorNavigation->functionAt(index)) {
      goToLine(hookSet->target().file, function->line());
    }
  }
  return true;
}

bool chooseInclude(int index) {
  activateFrame();
  if (!ready()) {
    return true;
  }
  const char* name = editorNavigation->includeAt(index);
  if (name == nullptr) {
    return true;
  }
  const std::string locating = std::string("Locating ") + name + " ...";
  SearchWatch watch(locating);
  DirectoryListing listing;
  Folders folders(listing, &watch);
  const String path =
      includeSearchPath(projectDirectory(), includePathOf(hookSet->target().file).view());
  String found;
  if (!findInclude(folders, listing, path.view(), name, found)) {
    if (watch.stopped()) {
      showStatus((locating + " stopped").c_str());
      return true;
    }
    showStatus("Pas trouve");
    showStatus((std::string("Cannot locate ") + name).c_str());
    return true;
  }
  const std::string file = fullPath(found.view());
  showStatus(file.c_str());
  openAndRecord(file.c_str());
  return true;
}

bool editDocumentation() {
  activateFrame();
  // The groupware menu has the command, too, when no title has been clicked yet.
  if (hookSet != nullptr && hookSet->target().documented[0] != '\0') {
    // Each view of a file leads to the file's one documentation.
    openFile((std::string(fileWithoutLine(hookSet->target().documented)) + ".txt").c_str());
  }
  return true;
}

}  // namespace kesto
