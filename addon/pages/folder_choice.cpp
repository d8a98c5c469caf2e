#include "addon/pages/folder_choice.h"

#include <shlobj.h>

#include "addon/foundation/full_path.h"
#include "addon/foundation/path.h"
#include "addon/ide/com_ptr.h"
#include "addon/ide/current_project.h"
#include "addon/ide/environment.h"
#include "addon/navigation/text_prompt.h"

namespace kesto {
namespace {

// A dialog is owned by a window of the screen, not by a part of one.
HWND topLevel(HWND window) {
  while ((GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0 && GetParent(window) != nullptr) {
    window = GetParent(window);
  }
  return window;
}

template <class Function>
Function find(HMODULE module, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// One that is not whole is meant from the project's directory on.
std::string wholePath(const std::string& directory) {
  const bool whole = directory[0] == '\\' || directory[0] == '/' || directory[1] == ':';
  std::string path = fullPath(whole ? std::string_view(directory)
                                    : joinPath(projectDirectory(), directory).view());
  // The tree gives none with a separator at its end, but for a drive.
  if (path.size() > 3 && path.back() == '\\') {
    path.pop_back();
  }
  return path;
}

// The tree of folders. Windows NT 3.51 has none, and its shell no such functions.
class FolderTree {
 public:
  FolderTree() {
    if (const HMODULE shell = GetModuleHandleA("SHELL32.DLL")) {
      browse_ = find<decltype(browse_)>(shell, "SHBrowseForFolderA");
      path_of_ = find<decltype(path_of_)>(shell, "SHGetPathFromIDListA");
      memory_ = find<decltype(memory_)>(shell, "SHGetMalloc");
    }
  }
  bool isThere() const {
    return addonEnvironment != nullptr && addonEnvironment->new_shell != FALSE &&
           browse_ != nullptr && path_of_ != nullptr && memory_ != nullptr;
  }

  std::string choose(HWND owner, const char* title, const std::string& start) const {
    char name[MAX_PATH] = "";
    BROWSEINFOA request = {};
    request.hwndOwner = owner;
    request.pszDisplayName = name;
    request.lpszTitle = title;
    request.ulFlags = BIF_RETURNONLYFSDIRS;
    request.lpfn = selectStart;
    request.lParam = reinterpret_cast<LPARAM>(start.c_str());
    const LPITEMIDLIST chosen = browse_(&request);
    char path[MAX_PATH] = "";
    if (chosen != nullptr) {
      path_of_(chosen, path);
      giveBack(chosen);
    }
    return path;
  }

 private:
  static int CALLBACK selectStart(HWND dialog, UINT message, LPARAM, LPARAM start) {
    if (message == BFFM_INITIALIZED) {
      SendMessageA(dialog, BFFM_SETSELECTIONA, TRUE, start);
    }
    return 0;
  }

  void giveBack(LPITEMIDLIST list) const {
    IMalloc* memory = nullptr;
    if (SUCCEEDED(memory_(&memory))) {
      ComPtr<IMalloc>(memory)->Free(list);
    }
  }

  LPITEMIDLIST(WINAPI* browse_)(LPBROWSEINFOA) = nullptr;
  BOOL(WINAPI* path_of_)(LPCITEMIDLIST, LPSTR) = nullptr;
  HRESULT(WINAPI* memory_)(IMalloc**) = nullptr;
};

}  // namespace

std::string chooseFolder(HWND control, const char* title, const std::string& current) {
  const HWND owner = topLevel(control);
  const FolderTree tree;
  if (!tree.isThere()) {
    PromptHistory offered;
    offered.enter(current);
    return promptForText(owner, nullptr, title, offered);
  }
  const std::string start = current.empty() ? projectDirectory() : wholePath(current);
  const std::string chosen = tree.choose(owner, title, start);
  return !current.empty() && equalIgnoringCase(chosen, start) ? current : chosen;
}

}  // namespace kesto
