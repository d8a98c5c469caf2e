// What each menu command of the frame does.
#include <string>
#include <vector>

#include "workbench/app/application.h"
#include "workbench/app/command_ids.h"
#include "workbench/app/file_dialogs.h"
#include "workbench/app/names.h"

namespace workbench {

void Application::frameCommand(int id) {
  fileCommand(id);
  editCommand(id);
  windowCommand(id);
}

bool Application::commandEnabled(int) {
  return true;
}

void Application::fileCommand(int id) {
  EditorChild* child = editors_.active();
  std::string path;
  switch (id) {
    case CM_FILE_NEW:
      editors_.create(projectDirectory());
      break;
    case CM_FILE_OPEN:
      if (askOpenName(frame_.window(), projectDirectory(), &path)) {
        editFile(path, 0);
      }
      break;
    case CM_FILE_SAVE:
      if (child != nullptr) {
        child->save();
      }
      break;
    case CM_FILE_SAVE_AS:
      if (child != nullptr) {
        editors_.saveAs(child->openFile());
      }
      break;
    case CM_FILE_SAVE_ALL: {
      std::vector<std::string> names;
      editors_.saveAll(&names);
      break;
    }
    case CM_FILE_CLOSE:
      if (child != nullptr) {
        SendMessageA(child->window(), WM_CLOSE, 0, 0);
      }
      break;
    case CM_FILE_EXIT:
      PostMessageA(frame_.window(), WM_CLOSE, 0, 0);
      break;
    default:
      break;
  }
}

void Application::editCommand(int id) {
  EditorChild* child = editors_.active();
  if (child == nullptr) {
    return;
  }
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
    default:
      break;
  }
}

void Application::windowCommand(int id) {
  HWND client = frame_.mdiClient();
  EditorChild* child = editors_.active();
  switch (id) {
    case CM_WINDOW_CASCADE:
      SendMessageA(client, WM_MDICASCADE, 0, 0);
      break;
    case CM_WINDOW_TILE:
      SendMessageA(client, WM_MDITILE, MDITILE_HORIZONTAL, 0);
      break;
    case CM_WINDOW_ARRANGE:
      SendMessageA(client, WM_MDIICONARRANGE, 0, 0);
      break;
    case CM_WINDOW_NEXT:
      SendMessageA(client, WM_MDINEXT, 0, 0);
      break;
    case CM_WINDOW_CLOSE_ALL:
      editors_.closeAll();
      break;
    case CM_WINDOW_NEW_VIEW:
      if (child != nullptr) {
        editors_.newView(*child);
      }
      break;
    default:
      break;
  }
}

}  // namespace workbench
