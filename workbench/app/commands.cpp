// What each menu command of the frame does.
#include <string>
#include <vector>

#include "workbench/app/application.h"
#include "workbench/app/edit_dialogs.h"
#include "workbench/app/editor_page.h"
#include "workbench/app/options_dialog.h"
#include "workbench/app/settings_store.h"
#include "workbench/project/tool_table.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/file_dialogs.h"
#include "workbench/windows/mdi_layout.h"
#include "workbench/windows/names.h"
#include "workbench/windows/path_text.h"

namespace workbench {

void Application::frameCommand(int id) {
  frame_.statusBar().passText();
  EditorChild* child = editors_.active();
  if (fileCommand(id, child) || windowCommand(id, child) || projectCommand(id) || nodeCommand(id) ||
      toolCommand(id)) {
    return;
  }
  if (child != nullptr) {
    editCommand(id, child);
  }
}

bool Application::commandEnabled(int id) {
  EditorChild* child = editors_.active();
  switch (id) {
    case CM_FILE_SAVE:
    case CM_FILE_SAVE_AS:
    case CM_EDIT_PASTE:
    case CM_EDIT_SELECT_ALL:
    case CM_EDIT_FIND:
    case CM_EDIT_FIND_NEXT:
    case CM_EDIT_FIND_PREVIOUS:
    case CM_EDIT_REPLACE:
    case CM_EDIT_GO_TO_LINE:
    case CM_WINDOW_CLOSE_ALL:
    case CM_WINDOW_NEW_VIEW:
      return child != nullptr;
    case CM_FILE_CLOSE:
    case CM_WINDOW_CASCADE:
    case CM_WINDOW_TILE:
    case CM_WINDOW_ARRANGE:
    case CM_WINDOW_NEXT:
      return SendMessageA(frame_.mdiClient(), WM_MDIGETACTIVE, 0, 0) != 0;
    case CM_FILE_RELOAD:
      return child != nullptr && !child->openFile().untitled;
    case CM_EDIT_UNDO:
      return child != nullptr && child->openFile().document.canUndo();
    case CM_EDIT_REDO:
      return child != nullptr && child->openFile().document.canRedo();
    case CM_EDIT_CUT:
    case CM_EDIT_COPY:
    case CM_EDIT_DELETE:
      return child != nullptr && child->textView().hasSelection();
    case CM_PROJECT_MAKE:
      return hasProject() && !make_.running();
    case CM_PROJECT_STOP_MAKE:
      return make_.running();
    case CM_PROJECT_OPEN_FILE:
    case CM_PROJECT_CLOSE:
    case CM_PROJECT_SAVE:
    case CM_PROJECT_BUILD_COMMAND:
    case CM_NODE_ADD_FILES:
    case CM_NODE_ADD_CONTAINER:
      return hasProject();
    case CM_NODE_RENAME:
      return project_window_.selected() != 0 && !isDelivery(project_window_.selected());
    case CM_NODE_OPEN:
    case CM_NODE_REMOVE:
    case CM_NODE_PROPERTIES:
      return project_window_.selected() != 0;
    default: {
      const ToolService::MenuTool* tool = toolOf(id);
      return tool == nullptr || toolEnabled(*tool);
    }
  }
}

bool Application::fileCommand(int id, EditorChild* child) {
  if (id >= CM_FIRST_RECENT && id <= CM_LAST_RECENT) {
    openRecent(static_cast<std::size_t>(id - CM_FIRST_RECENT));
    return true;
  }
  std::string path;
  switch (id) {
    case CM_FILE_NEW:
      announce(editors_.create(projectDirectory()));
      return true;
    case CM_FILE_OPEN:
      if (askOpenName(frame_.window(), projectDirectory(), &path)) {
        if (foldCase(extensionOf(path)) == ".ide") {
          openPath(path);
        } else {
          editFile(path, 0);
        }
      }
      return true;
    case CM_FILE_OPEN_FOLDER:
      if (askFolder(frame_.window(), "Open a folder of sources as a project", &path) &&
          openPath(path)) {
        showFirstSource();
      }
      return true;
    case CM_FILE_NEW_PROJECT:
      if (askFolder(frame_.window(), "Make a project of a folder's sources", &path) &&
          newProject(path)) {
        project_window_.show();
      }
      return true;
    case CM_FILE_SAVE:
    case CM_FILE_SAVE_AS:
      if (child != nullptr) {
        // Its editors may be gone when a box has been answered.
        const std::shared_ptr<OpenFile> file = child->sharedFile();
        if (id == CM_FILE_SAVE ? editors_.save(*file) : editors_.saveAs(*file)) {
          noteRecent(file->path);
          setStatus("Saved " + file->path);
        }
      }
      return true;
    case CM_FILE_SAVE_ALL:
      saveAll();
      return true;
    case CM_FILE_RELOAD:
      if (child != nullptr) {
        const std::shared_ptr<OpenFile> file = child->sharedFile();
        editors_.reload(*file);
      }
      return true;
    case CM_FILE_CLOSE:
      if (const LRESULT active = SendMessageA(frame_.mdiClient(), WM_MDIGETACTIVE, 0, 0)) {
        SendMessageA(reinterpret_cast<HWND>(active), WM_CLOSE, 0, 0);
      }
      return true;
    case CM_FILE_EXIT:
      PostMessageA(frame_.window(), WM_CLOSE, 0, 0);
      return true;
    default:
      return false;
  }
}

void Application::saveAll() {
  std::vector<std::string> names;
  editors_.saveAll(&names);
  if (project_.modified() && saveProject()) {
    names.push_back(project_.file());
  }
  if (!names.empty()) {
    const std::string count = std::to_string(names.size());
    setStatus(names.size() == 1 ? "Saved " + names[0] : "Saved " + count + " files");
  }
}

void Application::editCommand(int id, EditorChild* child) {
  TextWindow& text = child->textView();
  switch (id) {
    case CM_EDIT_UNDO:
      text.undo();
      break;
    case CM_EDIT_REDO:
      text.redo();
      break;
    case CM_EDIT_CUT:
      text.cut();
      break;
    case CM_EDIT_COPY:
      text.copy();
      break;
    case CM_EDIT_PASTE:
      text.paste();
      break;
    case CM_EDIT_DELETE:
      text.clear();
      break;
    case CM_EDIT_SELECT_ALL:
      text.selectAll();
      break;
    case CM_EDIT_FIND:
    case CM_EDIT_FIND_NEXT:
    case CM_EDIT_FIND_PREVIOUS:
    case CM_EDIT_REPLACE:
      findCommand(id, *child);
      break;
    case CM_EDIT_GO_TO_LINE:
      goToLine(*child);
      break;
    default:
      break;
  }
}

void Application::goToLine(EditorChild& child) {
  int line = child.textView().caret().line + 1;
  const unsigned int handle = child.handle();
  if (!askLine(frame_.window(), child.openFile().document.lineCount(), &line)) {
    return;
  }
  if (EditorChild* asked = editors_.byHandle(handle)) {
    asked->showHit(line, 1);
  }
}

bool Application::windowCommand(int id, EditorChild* child) {
  HWND client = frame_.mdiClient();
  switch (id) {
    case CM_WINDOW_CASCADE:
      cascadeChildren(client);
      return true;
    case CM_WINDOW_TILE:
      tileChildren(client);
      return true;
    case CM_WINDOW_ARRANGE:
      SendMessageA(client, WM_MDIICONARRANGE, 0, 0);
      return true;
    case CM_WINDOW_NEXT:
      SendMessageA(client, WM_MDINEXT, 0, 0);
      return true;
    case CM_WINDOW_CLOSE_ALL:
      editors_.closeAll();
      return true;
    case CM_EDIT_NEXT_MESSAGE:
      // In the project's window the key is that of a node's properties.
      if (project_window_.active()) {
        return nodeCommand(CM_NODE_PROPERTIES);
      }
      showOtherMessage(true);
      return true;
    case CM_EDIT_FORMER_MESSAGE:
      showOtherMessage(false);
      return true;
    case CM_WINDOW_NEW_VIEW:
      if (child != nullptr) {
        announce(editors_.newView(*child));
      }
      return true;
    default:
      return false;
  }
}

bool Application::projectCommand(int id) {
  switch (id) {
    case CM_PROJECT_OPEN_FILE:
      openProjectFile();
      return true;
    case CM_PROJECT_CLOSE:
      closeProject();
      return true;
    case CM_OPTIONS_ENVIRONMENT:
      editOptions();
      return true;
    case CM_PROJECT_MAKE:
      startMake();
      return true;
    case CM_PROJECT_STOP_MAKE:
      make_.cancel();
      return true;
    case CM_PROJECT_SAVE:
      if (saveProject()) {
        setStatus("Saved " + project_.file());
      }
      return true;
    case ideapi::kCommandShowProject:
      project_window_.show();
      return true;
    case ideapi::kCommandShowMessages:
      message_window_.show();
      return true;
    case CM_HELP_ABOUT:
      showAbout();
      return true;
    default:
      return false;
  }
}

void Application::openProjectFile() {
  std::vector<std::string> files;
  for (const NodeInfo* node : project_.nodes()) {
    if (isTextType(node->type) &&
        project_.tree().isPathName(node->parent, node->name, node->type)) {
      files.push_back(node->name);
    }
  }
  const std::string folder = project_.folder();
  std::string path;
  if (hasProject() && askProjectFile(frame_.window(), folder, files, &path)) {
    editFile(path, 0);
  }
}

void Application::editOptions() {
  std::vector<OptionsTopic> topics = {{new EditorPage(live_, settings_), false}};
  const ClientList<IMpdChapter>& chapters = root_.options().chapters();
  for (std::size_t i = 0; i < chapters.size(); ++i) {
    for (int position = 0; position < chapters[i]->GetPageCount(); ++position) {
      if (IMpdPage* page = chapters[i]->GetPage(position)) {
        topics.push_back({page, position > 0});
      }
    }
  }
  if (editOptionPages(frame_.window(), topics)) {
    editors_.settingsChanged();
    if (keep_settings_) {
      saveSettings(settings_);
    }
  }
  for (const OptionsTopic& topic : topics) {
    topic.page->Release();
  }
}

void Application::showAbout() {
  MessageBoxA(frame_.window(),
              "Kesto Workbench\n\nA small development environment that stands in for the Borland "
              "C++ 5.0 IDE: it offers the same windows and interfaces to add-ons.",
              "About", MB_OK | MB_ICONINFORMATION);
}

}  // namespace workbench
