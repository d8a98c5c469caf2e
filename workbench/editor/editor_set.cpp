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

FileFault EditorSet::readText(const std::string& path, std::string* bytes, FileStamp* stamp) {
  // Stamped first: a change between the two is noticed later.
  *stamp = store_.stamp(path);
  const FileFault fault = store_.read(path, kLargestText, bytes);
  const auto breaks =
      std::count_if(bytes->begin(), bytes->end(), [](char c) { return c == '\r' || c == '\n'; });
  return fault == FileFault::kNone && breaks > kMostLines ? FileFault::kTooLarge : fault;
}

EditorChild* EditorSet::open(const std::string& path) {
  if (EditorChild* child = find(path)) {
    bringForward(*child);
    return child;
  }
  std::string bytes;
  FileStamp stamp;
  const FileFault fault = readText(path, &bytes, &stamp);
  if (fault != FileFault::kNone) {
    ask(describeFault(fault, path), MB_OK | MB_ICONERROR);
    return nullptr;
  }
  auto file = std::make_shared<OpenFile>();
  file->path = path;
  file->stamp = file->noticed = stamp;
  file->document.load(bytes);
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
  return show(file);
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
  if (!child->create(mdi_client_, instance_)) {
    std::erase_if(children_, [child](const auto& each) { return each.get() == child; });
    ask("No more editor windows can be opened.", MB_OK | MB_ICONERROR);
    return nullptr;
  }
  renumber(*file);
  return child;
}

void EditorSet::bringForward(EditorChild& child) {
  if (IsIconic(child.window()) != 0) {
    SendMessageA(mdi_client_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(child.window()), 0);
  }
  SendMessageA(mdi_client_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(child.window()), 0);
}

FileFault EditorSet::store(OpenFile& file, const std::string& path) {
  const FileFault fault = saveFile(store_, path, file.document.bytes());
  if (fault != FileFault::kNone) {
    return fault;
  }
  const bool renamed = file.path != path;
  file.path = path;
  file.untitled = false;
  file.stamp = file.noticed = store_.stamp(path);
  file.document.markSaved();
  if (renamed) {
    renumber(file);
  }
  return fault;
}

bool EditorSet::write(OpenFile& file, const std::string& path) {
  const FileFault fault = store(file, path);
  if (fault != FileFault::kNone) {
    ask("The file was not saved. " + describeFault(fault, path), MB_OK | MB_ICONERROR);
  }
  return fault == FileFault::kNone;
}

bool EditorSet::changedOnDisk(const OpenFile& file) {
  const FileStamp now = store_.stamp(file.path);
  return now.exists && !now.sameContent(file.stamp);
}

bool EditorSet::save(OpenFile& file) {
  if (file.untitled) {
    return saveAs(file);
  }
  if (changedOnDisk(file) &&
      ask(file.path + " was changed by another program since it was read.\n\nOverwrite it?",
          MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) != IDYES) {
    return false;
  }
  return write(file, file.path);
}

bool EditorSet::saveAs(OpenFile& file) {
  std::string path = file.path;
  if (!askSaveName(frame_, &path)) {
    return false;
  }
  EditorChild* other = find(path);
  if (other != nullptr && &other->openFile() != &file) {
    ask(path + " is open in another editor. Close it first, or choose another name.",
        MB_OK | MB_ICONERROR);
    return false;
  }
  return write(file, path);
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

void EditorSet::checkDisk() {
  if (checking_) {
    return;
  }
  checking_ = true;
  for (const auto& file : files()) {
    checkOnDisk(*file);
  }
  checking_ = false;
}

void EditorSet::checkOnDisk(OpenFile& file) {
  const FileStamp now = store_.stamp(file.path);
  if (file.untitled || now.sameContent(file.noticed)) {
    return;
  }
  file.noticed = now;
  if (!now.exists) {
    file.document.markUnsaved();
    ask(file.path + " is no longer on the disk. Its text stays in the editor.",
        MB_OK | MB_ICONWARNING);
    return;
  }
  const char* question = file.document.modified()
                             ? " was changed by another program.\n\nRead it again and lose the "
                               "changes made here?"
                             : " was changed by another program.\n\nRead it again?";
  if (ask(file.path + question, MB_YESNO | MB_ICONQUESTION) == IDYES) {
    reload(file);
  }
}

void EditorSet::reload(OpenFile& file) {
  std::string bytes;
  FileStamp stamp;
  const FileFault fault = readText(file.path, &bytes, &stamp);
  if (fault != FileFault::kNone) {
    ask(describeFault(fault, file.path), MB_OK | MB_ICONERROR);
    return;
  }
  const std::vector<EditorChild*> views = viewsOf(file);
  std::vector<Place> carets;
  carets.reserve(views.size());
  for (EditorChild* view : views) {
    carets.push_back(view->textView().caret());
  }
  file.stamp = file.noticed = stamp;
  file.document.load(bytes);
  for (std::size_t i = 0; i < views.size(); ++i) {
    views[i]->textView().setCaret(file.document.clamp(carets[i]));
  }
}

void EditorSet::settingsChanged() {
  for (const auto& child : children_) {
    child->textView().settingsChanged();
  }
}

}  // namespace workbench
