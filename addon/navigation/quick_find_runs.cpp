#include "addon/navigation/quick_find.h"

#include <algorithm>

#include "addon/foundation/full_path.h"
#include "addon/foundation/menu_text.h"
#include "addon/ide/bar_messages.h"
#include "addon/ide/current_project.h"
#include "addon/ide/find_window.h"
#include "addon/ide/header_recorder.h"
#include "addon/ide/hook_set.h"
#include "addon/ide/koptions.h"
#include "addon/ide/search_watch.h"
#include "addon/ide/status_line.h"
#include "addon/ide/wait_cursor.h"
#include "addon/navigation/ide_sources.h"
#include "addon/navigation/popup_menu.h"
#include "addon/navigation/text_prompt.h"

namespace kesto {
namespace {

constexpr int kCommandMethodResults = 184;
constexpr int kCommandFirstResult = 800;
constexpr int kResultCommands = 100;
// A menu's ids have 16 bits.
constexpr int kMostResultItems = 0x10000 - kCommandFirstResult;

struct SearchTexts {
  const char* prompt;
  const char* failure;
};

// In the order of Search.
constexpr SearchTexts kTexts[kSearchCount] = {
    {"Find as function...", "Sorry, cannot find function..."},
    {"Find as method...", "Sorry, cannot find method ..."},
    {"Find as class ...", "Sorry, cannot find class ..."},
    {"Cross reference ...", "Sorry, cannot cross reference ..."}};

std::string searchingText(const std::string& name) {
  return "Searching " + name + " ...";
}

// What the status line says of a search that Escape ended.
std::string stoppedText(const std::string& searching, int found) {
  return searching + " stopped, " + std::to_string(found) + " found so far";
}

HWND targetEditor() {
  return hookSet != nullptr ? hookSet->target().window : nullptr;
}

const char* targetFile() {
  return hookSet != nullptr ? hookSet->target().file : "";
}

}  // namespace

void QuickFind::run(Search search) {
  if (asking_) {
    return;
  }
  const SearchTexts& texts = kTexts[static_cast<int>(search)];
  const HWND frame = findFrame();
  asking_ = true;
  const std::string name =
      promptForText(frame != nullptr ? frame : owner_, targetEditor(), texts.prompt, history_);
  // The IDE may have closed while it was asked.
  if (quickFind != this) {
    return;
  }
  asking_ = false;
  if (name.empty()) {
    return;
  }
  history_.enter(name);
  if (!searchFor(search, name)) {
    soundBeep();
    showStatus(texts.failure);
  }
}

bool QuickFind::searchFor(Search search, const std::string& name) {
  switch (search) {
    case Search::kFunction:
    case Search::kClass:
      return findDefinition(search, name);
    case Search::kMethod:
      return findMethods(name);
    case Search::kCross:
      return crossReference(name);
  }
  return true;
}

std::vector<SearchStep> QuickFind::plan(Search search) const {
  const std::string directory = projectDirectory();
  const bool open = isProjectOpen();
  String source_path;
  String include_path;
  if (open) {
    const ProjectNode node = nodeOfFile(targetFile());
    getOptionText(node, kOptionSourcePath, source_path);
    getOptionText(node, kOptionIncludePath, include_path);
  }
  std::vector<SearchStep> steps =
      planSearch(search, {directory, open, source_path.view(), include_path.view(),
                          settings.function_mask.value, settings.include_mask.value});
  for (SearchStep& step : steps) {
    // What is found below it is compared with the titles of editors.
    step.directory = fullPath(joinPath(step.directory, "").view());
  }
  return steps;
}

bool QuickFind::findDefinition(Search search, const std::string& name) {
  FirstHit hit;
  bool found = false;
  {
    const WaitCursor wait;
    const std::string text = searchingText(name);
    showStatus(text.c_str());
    SearchWatch watch(text);
    IdeSources sources;
    found = findFirst(sources.files(), plan(search), settings.recurse.value != 0,
                      NameMatcher(search, name), hit, &watch);
    if (watch.stopped()) {
      showStatus((text + " stopped").c_str());
      return true;
    }
    showStatus((text + (found ? " Found !" : " sorry !")).c_str());
  }
  if (!found) {
    return false;
  }
  upperAscii(hit.file.data());
  showStatus((hit.file + " : " + std::to_string(hit.line)).c_str());
  // Opening may ask as well.
  if (openAndRecord(hit.file.c_str()) && quickFind == this) {
    postFound(kGoToLineMessage, hit.file.c_str(), hit.line);
  }
  return true;
}

bool QuickFind::collect(Search search, const std::string& name, Tableau<QuickResu>& hits) {
  const WaitCursor wait;
  const std::string text = searchingText(name);
  showStatus(text.c_str());
  SearchWatch watch(text);
  IdeSources sources;
  collectHits(sources.files(), plan(search), settings.recurse.value != 0, NameMatcher(search, name),
              hits, &watch);
  if (!watch.stopped()) {
    watch.finished(text.c_str());
  } else if (quickFind == this) {
    showStatus(stoppedText(text, hits.count()).c_str());
  }
  return !watch.stopped();
}

bool QuickFind::findMethods(const std::string& name) {
  const bool whole = collect(Search::kMethod, name, method_results_);
  // The session may have ended in the middle.
  if (quickFind != this) {
    return true;
  }
  const int found = method_results_.count();
  if (found > 0) {
    // The only one so far need not be the one that was sought.
    const bool direct = found == 1 && whole;
    PostMessageA(owner_, WM_COMMAND,
                 static_cast<WPARAM>(direct ? kCommandFirstResult : kCommandMethodResults), 0);
  }
  return found > 0 || !whole;
}

bool QuickFind::crossReference(const std::string& name) {
  const bool whole = collect(Search::kCross, name, cross_results_);
  if (quickFind != this) {
    return true;
  }
  if (cross_results_.count() == 0) {
    if (!whole) {
      return true;
    }
    soundBeep();
    showStatus("Sorry, nothing found !");
    return false;
  }
  messages_.write(name.c_str(), cross_results_, whole);
  if (!whole) {
    return true;
  }
  soundBeep();
  showStatus("References found, see Message Window");
  return true;
}

void QuickFind::showMethodResults(HWND bar) {
  const HMENU popup = CreatePopupMenu();
  const int shown = std::min(method_results_.count(), kMostResultItems);
  for (int i = 0; i < shown; ++i) {
    // Ids beyond the range of the results belong to other commands: those are only shown.
    const UINT state = i < kResultCommands ? MF_ENABLED : MF_GRAYED;
    AppendMenuA(popup, MF_STRING | state, static_cast<UINT_PTR>(kCommandFirstResult + i),
                menuText(method_results_.at(i)->text().view()).c_str());
  }
  if (shown == 0) {
    DestroyMenu(popup);
    return;
  }
  POINT mouse = {};
  GetCursorPos(&mouse);
  trackPopup(bar, popup, mouse);
}

void QuickFind::chooseMethodResult(int index) {
  if (index >= 0 && index < method_results_.count()) {
    const QuickResu& result = *method_results_.at(index);
    postFound(kOpenFoundFileMessage, result.file(), result.line());
  }
}

void QuickFind::postFound(UINT message, const char* path, int line) {
  lstrcpynA(found_path_, path, sizeof found_path_);
  PostMessageA(owner_, message, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(found_path_));
}

}  // namespace kesto
