#include "workbench/windows/file_dialogs.h"

#include <commdlg.h>
#include <shlobj.h>

#include <cstring>

#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

constexpr std::size_t kManyNames = 32000;  // bytes

constexpr char kFilter[] =
    "C++ sources (*.cpp;*.cc;*.cxx;*.c;*.h;*.hpp;*.hh)\0*.cpp;*.cc;*.cxx;*.c;*.h;*.hpp;*.hh\0"
    "Resource scripts (*.rc;*.rh)\0*.rc;*.rh\0"
    "Projects (*.ide)\0*.ide\0"
    "Programs and libraries (*.exe;*.dll;*.lib)\0*.exe;*.dll;*.lib\0"
    "All files (*.*)\0*.*\0";
constexpr DWORD kTargetFilter = 4;  // from 1

// The system puts the dialog into its owner's corner, where an add-on's bar may lie.
UINT_PTR CALLBACK centreDialog(HWND page, UINT message, WPARAM, LPARAM l) {
  if (message != WM_NOTIFY || reinterpret_cast<const NMHDR*>(l)->code != CDN_INITDONE) {
    return 0;
  }
  HWND dialog = GetParent(page);
  RECT own = {};
  RECT over = {};
  GetWindowRect(dialog, &own);
  GetWindowRect(GetWindow(dialog, GW_OWNER), &over);
  SetWindowPos(dialog, nullptr, (over.left + over.right - (own.right - own.left)) / 2,
               (over.top + over.bottom - (own.bottom - own.top)) / 2, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER);
  return 0;
}

struct NameDialog {
  OPENFILENAMEA info = {};
  char path[MAX_PATH] = {};
  std::string folder;

  NameDialog(HWND owner, const std::string& start_folder, DWORD flags) : folder(start_folder) {
    info.lStructSize = sizeof info;
    info.hwndOwner = owner;
    info.lpstrFilter = kFilter;
    info.lpstrFile = path;
    info.nMaxFile = sizeof path;
    info.lpstrInitialDir = folder.c_str();
    info.lpfnHook = centreDialog;
    info.Flags = flags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING | OFN_HIDEREADONLY |
                 OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
  }
};

}  // namespace

bool askOpenName(HWND owner, const std::string& folder, std::string* path) {
  NameDialog dialog(owner, folder, OFN_FILEMUSTEXIST);
  dialog.info.lpstrTitle = "Open a file";
  if (GetOpenFileNameA(&dialog.info) == 0) {
    return false;
  }
  *path = dialog.path;
  return true;
}

bool askOpenNames(HWND owner, const std::string& folder, bool targets,
                  std::vector<std::string>* paths) {
  std::vector<char> buffer(kManyNames);
  NameDialog dialog(owner, folder, OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT);
  dialog.info.lpstrTitle = "Add files to the project";
  dialog.info.nFilterIndex = targets ? kTargetFilter : 1;
  dialog.info.lpstrFile = buffer.data();
  dialog.info.nMaxFile = static_cast<DWORD>(buffer.size());
  if (GetOpenFileNameA(&dialog.info) == 0) {
    return false;
  }
  // One path, or the folder and the names, with two zeros at the end.
  const std::string first = buffer.data();
  for (const char* name = buffer.data() + first.size() + 1; *name != '\0';
       name += std::strlen(name) + 1) {
    paths->push_back(joinPath(first, name));
  }
  if (paths->empty()) {
    paths->push_back(first);
  }
  return true;
}

bool askSaveName(HWND owner, std::string* path) {
  NameDialog dialog(owner, std::string(folderOf(*path)), OFN_OVERWRITEPROMPT);
  dialog.info.lpstrTitle = "Save file as";
  dialog.info.lpstrDefExt = "cpp";
  const std::string name(fileName(*path));
  std::memcpy(dialog.path, name.c_str(), name.size() < MAX_PATH ? name.size() + 1 : 0);
  if (GetSaveFileNameA(&dialog.info) == 0) {
    return false;
  }
  *path = dialog.path;
  return true;
}

bool askFolder(HWND owner, const char* prompt, std::string* path) {
  char name[MAX_PATH] = {};
  BROWSEINFOA info = {};
  info.hwndOwner = owner;
  info.pszDisplayName = name;
  info.lpszTitle = prompt;
  info.ulFlags = BIF_RETURNONLYFSDIRS;
  LPITEMIDLIST list = SHBrowseForFolderA(&info);
  if (list == nullptr) {
    return false;
  }
  const bool done = SHGetPathFromIDListA(list, name) != 0;
  CoTaskMemFree(list);
  if (done) {
    *path = name;
  }
  return done;
}

}  // namespace workbench
