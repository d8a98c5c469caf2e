#include "addon/topbar/command_table.h"

#include <string>

#include "addon/foundation/path.h"
#include "addon/groupware/groupware_project.h"
#include "addon/html/documentation_run.h"
#include "addon/ide/editor_operations.h"
#include "addon/ide/find_window.h"
#include "addon/ide/help_file.h"
#include "addon/ide/status_line.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/quick_find.h"
#include "addon/navigation/title_commands.h"
#include "addon/tasks/task_dialog.h"
#include "addon/tasks/task_flash.h"
#include "addon/topbar/bar_commands.h"
#include "addon/topbar/bar_menu.h"
#include "addon/topbar/caption_window.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

struct Command {
  HWND bar;
  int position;  // id minus the first of its range
  LPARAM lParam;
};

// Returns false to leave the command to the window's default processing.
using Handler = bool (*)(const Command&);

struct CommandRange {
  int first;
  int last;
  Handler handler;     // null: nothing answers to these ids
  const char* status;  // text while the item is highlighted, null for a blank line
  std::string (*subject)(int position) = nullptr;  // what the text goes on with
  // Whether a modal dialog of the IDE stands in its way: it would work on what is
  // underneath, or put a second dialog beside the first.
  bool waits_for_ide = true;
};

bool completeWord(const Command&) {
  if (const HWND editor = findActiveEditor()) {
    char title[MAX_PATH] = "";
    GetWindowTextA(editor, title, sizeof title);
    // A file that is typed into carries the modified mark.
    completeAtCursor(std::string(documentationTitle(title)).c_str());
  }
  return true;
}

bool placeCaption(const Command& command) {
  placeCaptionWindow(reinterpret_cast<HWND>(command.lParam));
  return true;
}

bool paintButtons(const Command& command) {
  if (editorNavigation != nullptr) {
    editorNavigation->paint(reinterpret_cast<HWND>(command.lParam));
  }
  return true;
}

bool runSearch(const Command& command) {
  if (quickFind != nullptr) {
    quickFind->run(static_cast<Search>(command.position));
  }
  return true;
}

bool showMethodResults(const Command& command) {
  if (quickFind != nullptr) {
    quickFind->showMethodResults(command.bar);
  }
  return true;
}

bool chooseMethodResult(const Command& command) {
  if (quickFind != nullptr) {
    quickFind->chooseMethodResult(command.position);
  }
  return true;
}

bool openHelp(const Command&) {
  if (helpFile != nullptr) {
    helpFile->showTopic(kHelpContents);
  }
  return true;
}

bool openOptions(const Command&) {
  if (const HWND frame = findFrame()) {
    PostMessageA(frame, WM_COMMAND, ideapi::kCommandOptions, 0);
  }
  return true;
}

bool generateDocumentation(const Command&) {
  if (documentationRun != nullptr) {
    documentationRun->generate();
  }
  return true;
}

bool openGroupware(const Command& command) {
  if (groupwareProject != nullptr && command.position == 0) {
    groupwareProject->openGet(findFrame());
  } else if (groupwareProject != nullptr) {
    groupwareProject->openSend(findFrame());
  }
  return true;
}

bool showDocumentation(const Command&) {
  if (documentationRun != nullptr) {
    documentationRun->show();
  }
  return true;
}

bool showTasks(const Command&) {
  if (taskDialog != nullptr) {
    taskDialog->open(findFrame());
  }
  return true;
}

bool flashWhenDue(const Command&) {
  if (taskFlash != nullptr) {
    taskFlash->showWhenDue();
  }
  return true;
}

bool flashOnDemand(const Command&) {
  if (taskFlash != nullptr) {
    taskFlash->showOnDemand();
  }
  return true;
}

bool newEditor(const Command& command) {
  onEditorCreated(reinterpret_cast<HWND>(command.lParam));
  return true;
}

bool rebuildMenu(const Command&) {
  if (barMenu != nullptr) {
    barMenu->rebuild();
  }
  return true;
}

// A command whose work knows its position alone.
template <void (*Work)(int)>
bool atPosition(const Command& command) {
  Work(command.position);
  return true;
}

constexpr CommandRange kCommands[] = {
    {101, 101, newEditor, nullptr, nullptr, false},
    {102, 102, completeWord, nullptr},
    {103, 103, rebuildMenu, nullptr, nullptr, false},
    {104, 104, placeCaption, nullptr, nullptr, false},
    {111, 111, paintButtons, nullptr, nullptr, false},
    {171, 171, showTasks, nullptr},
    {kCommandFlash, kCommandFlash, flashWhenDue, nullptr},
    {173, 173, flashOnDemand, nullptr},
    {175, 176, openGroupware, nullptr},
    {177, 177, [](const Command&) { return editDocumentation(); }, nullptr},
    {184, 184, showMethodResults, nullptr},
    {187, 187, [](const Command& c) { return showIncludesPopup(c.bar); }, nullptr},
    {188, 188, [](const Command& c) { return showQuickFindPopup(c.bar); }, nullptr},
    {189, 189, [](const Command& c) { return showFunctionsPopup(c.bar); }, nullptr},
    {190, 193, runSearch, nullptr},
    {194, 194, generateDocumentation, nullptr},
    {195, 195, showDocumentation, nullptr},
    {196, 196, openHelp, "Open help window", nullptr, false},
    {197, 197, [](const Command& c) { return showDocumentationPopup(c.bar); }, nullptr},
    {199, 199, openOptions, "Open options dialog"},
    {200, 299, atPosition<switchToProject>, "Switch to project ", recentProjectPath},
    {300, 399, atPosition<runExecutable>, "Run ", executableName},
    {400, 599, atPosition<openRecentHeader>, "Open ", recentHeaderPath},
    {700, 799, [](const Command& c) { return chooseInclude(c.position); }, nullptr},
    {800, 899, chooseMethodResult, nullptr},
    {1000, 9999, [](const Command& c) { return chooseFunction(c.position); }, nullptr},
    {10000, 19999, atPosition<chooseProjectFile>, "Open ", projectFileName},
};

const CommandRange* findRange(int id) {
  for (const CommandRange& range : kCommands) {
    if (id >= range.first && id <= range.last) {
      return &range;
    }
  }
  return nullptr;
}

}  // namespace

bool dispatchCommand(HWND bar, int id, LPARAM lParam) {
  const CommandRange* range = findRange(id);
  if (range == nullptr || range->handler == nullptr) {
    return false;
  }
  return (range->waits_for_ide && !isIdeFree()) || range->handler({bar, id - range->first, lParam});
}

void showCommandStatus(int id, unsigned flags) {
  if ((flags & (MF_POPUP | MF_SEPARATOR)) != 0) {
    return;
  }
  const CommandRange* range = findRange(id);
  if (range == nullptr || range->status == nullptr) {
    showStatus(" ");
    return;
  }
  std::string text(range->status);
  if (range->subject != nullptr) {
    text += range->subject(id - range->first);
  }
  showStatus(text.c_str());
}

}  // namespace kesto
