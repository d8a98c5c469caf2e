#include "addon/topbar/bar_commands.h"

#include "addon/foundation/directory_listing.h"
#include "addon/foundation/full_path.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/path.h"
#include "addon/ide/find_window.h"
#include "addon/ide/header_recorder.h"
#include "addon/ide/open_file.h"
#include "addon/ide/project_nodes.h"
#include "addon/ide/status_line.h"
#include "addon/ide/tool_runs.h"
#include "addon/ide/tool_table.h"
#include "addon/topbar/bar_menu.h"
#include "addon/topbar/recent_files.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

constexpr char kNotEnoughFiles[] = "Internal error: not enough files";
constexpr char kBadFile[] = "Internal error: bad file";
constexpr int kTitleSize = 512;

// Whether the node can be worked on; the status line says why when it cannot.
bool isUsable(unsigned node) {
  if (node == 0) {
    showStatus(kNotEnoughFiles);
    return false;
  }
  if (!ProjectNodes().exists(node)) {
    showStatus(kBadFile);
    return false;
  }
  return true;
}

std::string extensionOf(std::string_view path) {
  const std::string_view name = fileNamePart(path);
  const size_t dot = name.rfind('.');
  return dot != std::string_view::npos ? std::string(name.substr(dot)) : std::string();
}

void runToolOfFile(const std::string& kind, const std::string& file) {
  if (toolTable == nullptr) {
    return;
  }
  String window_class;
  const char* tool = toolTable->findTool(kind.c_str(), &window_class);
  if (window_class == ideapi::kEditorClass) {
    openAndRecord(file.c_str());
  } else {
    runTool(tool, file.c_str());
  }
}

// A header's own editor that is still there, or its file.
bool canOpen(const std::string& header) {
  return findEditorOf(header) != nullptr || DirectoryListing().isFile(header.c_str());
}

void openNode(unsigned node) {
  std::string file;
  std::string kind;
  {
    const ProjectNodes nodes;
    file = nodes.name(node);
    kind = nodes.type(node);
  }
  runToolOfFile(kind.empty() ? extensionOf(file) : kind, file);
}

// Nothing of the IDE is held while it asks, and only what was asked about is removed.
void askToRemove(unsigned node, const std::string& name) {
  const std::string file = ProjectNodes().name(node);
  const std::string question = "Okay to remove\n" + name + " ?";
  if (showMessage(nullptr, question.c_str(), "Confirmation", kMessageYesNo) != kAnswerYes) {
    return;
  }
  const ProjectNodes nodes;
  if (nodes.exists(node) && nodes.name(node) == file) {
    nodes.remove(node);
  }
}

void openAlternatively(unsigned node) {
  if (const char* text = toolResultText(ProjectNodes().openAlternatively(node))) {
    showStatus(text);
  }
}

std::string recentPath(const RecentList& list, int position) {
  const char* path = list.at(position);
  return path != nullptr ? path : "";
}

}  // namespace

void onEditorCreated(HWND editor) {
  if (recentFiles == nullptr || !IsWindow(editor)) {
    return;
  }
  char title[kTitleSize] = "";
  GetWindowTextA(editor, title, sizeof title);
  if (recentFiles->headerUsed(title, editor) == 0) {
    PostMessageA(editor, WM_CLOSE, 0, 0);
  }
}

void switchToProject(int position) {
  activateFrame();
  const std::string path = recentProjectPath(position);
  if (recentFiles == nullptr || recentFiles->projects().at(position) == nullptr) {
    showStatus(kNotEnoughFiles);
  } else {
    runTool("Project", path.c_str());
  }
}

void openRecentHeader(int position) {
  activateFrame();
  if (recentFiles == nullptr || recentFiles->headers().at(position) == nullptr) {
    return;
  }
  // A copy: opening moves the entries.
  const std::string path = recentHeaderPath(position);
  const std::string file = fullPath(path);
  if (!canOpen(file)) {
    recentFiles->forgetHeader(path);
    showStatus(("Cannot locate " + path).c_str());
    return;
  }
  openFile(file.c_str());
  if (recentFiles == nullptr) {
    return;
  }
  if (file != path) {
    // Written another way by an older list: it is listed once, as it is now.
    recentFiles->headers().remove(path);
  }
  recentFiles->headerUsed(file.c_str(), findEditorOf(file));
}

void runExecutable(int position) {
  const unsigned node = barMenu != nullptr ? barMenu->tool(position) : 0;
  if (isUsable(node)) {
    showStatus("Running");
    // Its type is that one in some case of letters.
    runToolOfFile(".exe", ProjectNodes().name(node));
  }
}

void chooseProjectFile(int position) {
  const bool alt = GetKeyState(VK_MENU) < 0;
  const bool ctrl = GetKeyState(VK_CONTROL) < 0;
  const unsigned node = barMenu != nullptr ? barMenu->file(position) : 0;
  if (isUsable(node)) {
    if (alt && ctrl) {
      openAlternatively(node);
    } else if (alt) {
      barMenu->features().quickAdd(node);
    } else if (ctrl) {
      askToRemove(node, projectFileName(position));
    } else {
      openNode(node);
    }
  }
  activateFrame();
}

std::string recentProjectPath(int position) {
  return recentFiles != nullptr ? recentPath(recentFiles->projects(), position) : "";
}

std::string recentHeaderPath(int position) {
  return recentFiles != nullptr ? recentPath(recentFiles->headers(), position) : "";
}

std::string executableName(int position) {
  return barMenu != nullptr ? barMenu->toolName(position) : "";
}

std::string projectFileName(int position) {
  return barMenu != nullptr ? barMenu->fileName(position) : "";
}

}  // namespace kesto
