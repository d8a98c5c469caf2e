#include "workbench/editor/editor_set.h"

#include <algorithm>
#include <utility>

#include "workbench/windows/file_dialogs.h"
#include "workbench/windows/message_box.h"
#include "workbench/windows/path_text.h"

namespace workbench {

void EditorSet::attach(HWND frame, HWND mdi_client, HINSTANCE instance) {
  frame_ = frame;
  mdi_client_ = mdi_client;
  instance_ = instance;
}

int EditorSet::ask(const std::string& text, UINT buttons) {
  return showBox(frame_, text, buttons);
}

EditorChild* EditorSet::find(const std::string& path) const {
  // Mostly none has it, which is known without asking the system for its windows.
  if (std::none_of(children_.begin(), children_.end(),
                   [&](const auto& child) { return samePath(child->file(), path); })) {
    return nullptr;
  }
  // The MDI client lists its children from the top one down.
  for (HWND window = GetWindow(mdi_client_, GW_CHILD); window != nullptr;
       window = GetWindow(window, GW_HWNDNEXT)) {
    for (const auto& child : children_) {
      if (child->window() == window && samePath(child->file(), path)) {
        return child.get();
      }
    }
  }
  return nullptr;
}

EditorChild* EditorSet::byHandle(unsigned int handle) const {
  for (const auto& child : children_) {
    if (child->handle() == handle && child->window() != nullptr) {
      return child.get();
    }
  }
  return nullptr;
}

EditorChild* EditorSet::active() const {
  if (mdi_client_ == nullptr) {
    return nullptr;
  }
  const HWND window = reinterpret_cast<HWND>(SendMessageA(mdi_client_, WM_MDIGETACTIVE, 0, 0));
  for (const auto& child : children_) {
    if (window != nullptr && child->window() == window) {
      return child.get();
    }
  }
  return nullptr;
}

std::vector<EditorChild*> EditorSet::viewsOf(const OpenFile& file) const {
  std::vector<EditorChild*> result;
  for (const auto& child : children_) {
    if (&child->openFile() == &file && child->window() != nullptr) {
      result.push_back(child.get());
    }
  }
  return result;
}

std::vector<std::shared_ptr<OpenFile>> EditorSet::files() const {
  std::vector<std::shared_ptr<OpenFile>> result;
  for (const auto& child : children_) {
    if (std::find(result.begin(), result.end(), child->sharedFile()) == result.end()) {
      result.push_back(child->sharedFile());
    }
  }
  return result;
}

void EditorSet::renumber(const OpenFile& file) {
  const std::vector<EditorChild*> views = viewsOf(file);
  int number = views.size() > 1 ? 1 : 0;
  for (EditorChild* view : views) {
    view->setViewNumber(number == 0 ? 0 : number++);
  }
}

EditorChild* EditorSet::open(const std::string& path) {
  if (EditorChild* child = find(path)) {
    bringForward(*child);
    return child;
  }
  auto file = std::make_shared<OpenFile>();
  file->path = path;
  std::string bytes;
  const FileFault fault = readText(path, &bytes, &file->stamp);
  if (fault == FileFault::kNone) {
    file->document.load(bytes);
  }
  if (!offerLeftovers(*file) && fault != FileFault::kNone) {
    ask(describeFault(fault, path), MB_OK | MB_ICONERROR);
    return nullptr;
  }
  return showAnswered(file);
}

// Shows the file after a question, which may have gone on for long.
EditorChild* EditorSet::showAnswered(const std::shared_ptr<OpenFile>& file) {
  if (IsWindow(mdi_client_) == 0) {
    return nullptr;
  }
  if (EditorChild* child = find(file->path)) {
    bringForward(*child);
    return child;
  }
  file->noticed = file->stamp;
  return show(file);
}

EditorChild* EditorSet::openOrStart(const std::string& path) {
  const bool starts = mayNameFile(path) && find(path) == nullptr && !store_.stamp(path).exists &&
                      store_.stamp(std::string(folderOf(path))).exists;
  if (!starts) {
    return open(path);
  }
  auto file = std::make_shared<OpenFile>();
  file->path = path;
  offerLeftovers(*file);
  return showAnswered(file);
}

EditorChild* EditorSet::create(const std::string& folder) {
  auto file = std::make_shared<OpenFile>();
  file->untitled = true;
  for (int i = 0; i < 1000; ++i) {
    const std::string digits = std::to_string(i);
    file->path = joinPath(folder, "NONAME" + std::string(i < 10 ? "0" : "") + digits + ".CPP");
    if (find(file->path) == nullptr && !store_.stamp(file->path).exists) {
      break;
    }
  }
  return show(file);
}

EditorChild* EditorSet::newView(EditorChild& child) {
  const Place caret = child.textView().caret();
  EditorChild* view = show(child.sharedFile());
  if (view != nullptr) {
    view->textView().setCaret(caret);
  }
  return view;
}

EditorChild* EditorSet::show(const std::shared_ptr<OpenFile>& file) {
  children_.push_back(std::make_unique<EditorChild>(file, settings_, *this));
  EditorChild* child = children_.back().get();
  child->setHandle(++last_handle_);
  if (!child->create(mdi_client_, instance_, freePlace())) {
    std::erase_if(children_, [child](const auto& each) { return each.get() == child; });
    ask("No more editor windows can be opened.", MB_OK | MB_ICONERROR);
    return nullptr;
  }
  renumber(*file);
  return child;
}

Area EditorSet::freePlace() const {
  std::vector<Area> panes;
  std::vector<Area> editors;
  for (HWND window = GetWindow(mdi_client_, GW_CHILD); window != nullptr;
       window = GetWindow(window, GW_HWNDNEXT)) {
    WINDOWPLACEMENT place = {};
    place.length = sizeof place;
    // The titles of icons are windows too.
    if (GetWindow(window, GW_OWNER) == nullptr && IsIconic(window) == 0 &&
        (GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0 &&
        GetWindowPlacement(window, &place) != 0) {
      const RECT& area = place.rcNormalPosition;
      const bool editor =
          std::any_of(children_.begin(), children_.end(),
                      [window](const auto& each) { return each->window() == window; });
      (editor ? editors : panes).push_back({area.left, area.top, area.right, area.bottom});
    }
  }
  RECT client = {};
  GetClientRect(mdi_client_, &client);
  const int step = GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYFRAME);
  return placeForNew({0, 0, client.right, client.bottom}, panes, editors, step);
}

void EditorSet::bringForward(EditorChild& child) {
  if (IsIconic(child.window()) != 0) {
    SendMessageA(mdi_client_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(child.window()), 0);
  }
  SendMessageA(mdi_client_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(child.window()), 0);
}

bool EditorSet::saveAll(std::vector<std::string>* names) {
  bool done = true;
  for (const auto& file : files()) {
    if (!file->document.modified()) {
      continue;
    }
    if (save(*file)) {
      names->push_back(file->path);
    } else {
      done = false;
    }
  }
  return done;
}

void EditorSet::saveQuietly(std::vector<std::string>* names, std::string* failure) {
  failure->clear();
  for (const auto& file : files()) {
    if (!file->document.modified() || file->untitled || changedOnDisk(*file)) {
      continue;
    }
    const FileFault fault = store(*file, file->path);
    if (fault == FileFault::kNone) {
      names->push_back(file->path);
    } else {
      *failure = "The file was not saved. " + describeFault(fault, file->path);
    }
  }
}

bool EditorSet::askToSave(OpenFile& file) {
  if (!file.document.modified()) {
    return true;
  }
  const int answer = ask("Save changes to " + file.path + "?", MB_YESNOCANCEL | MB_ICONQUESTION);
  return answer == IDNO || (answer == IDYES && save(file));
}

bool EditorSet::askToSaveAll() {
  for (const auto& file : files()) {
    if (!askToSave(*file)) {
      return false;
    }
  }
  return true;
}

void EditorSet::closeAll() {
  if (askToSaveAll()) {
    destroyAll();
  }
}

void EditorSet::destroyAll() {
  std::vector<HWND> windows;
  for (const auto& child : children_) {
    windows.push_back(child->window());
  }
  for (HWND window : windows) {
    SendMessageA(mdi_client_, WM_MDIDESTROY, reinterpret_cast<WPARAM>(window), 0);
  }
}

bool EditorSet::saveChild(EditorChild& child) {
  // The editor may go while a box is up.
  const std::shared_ptr<OpenFile> file = child.sharedFile();
  return save(*file);
}

bool EditorSet::mayClose(EditorChild& child) {
  const std::shared_ptr<OpenFile> file = child.sharedFile();
  return viewsOf(*file).size() > 1 || askToSave(*file);
}

void EditorSet::childGone(EditorChild& child) {
  const std::shared_ptr<OpenFile> file = child.sharedFile();
  std::erase_if(children_, [&child](const auto& each) { return each.get() == &child; });
  renumber(*file);
  if (changed_) {
    changed_();
  }
}

void EditorSet::childActivated(EditorChild&) {
  if (changed_) {
    changed_();
  }
}

void EditorSet::childChanged(EditorChild&) {
  if (changed_) {
    changed_();
  }
}

void EditorSet::childEdited() {
  if (edited_) {
    edited_();
  }
}

bool EditorSet::mayEdit(EditorChild& child) {
  OpenFile& file = child.openFile();
  // Asked once, before the first change: later the text is saved under another name.
  if (!file.stamp.read_only || file.document.modified()) {
    return true;
  }
  const FileStamp now = store_.stamp(file.path);
  file.stamp.read_only = now.read_only;
  return !now.read_only ||
         ask(file.path + " is read-only: changes can only be saved under another name.\n\nEdit it?",
             MB_YESNO | MB_ICONWARNING) == IDYES;
}

void EditorSet::settingsChanged() {
  for (const auto& child : children_) {
    child->textView().settingsChanged();
  }
}

}  // namespace workbench
