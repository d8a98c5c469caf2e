// What editors have to do with the files on disk: reading, saving, and what other
// programs and interrupted saves made of them.
#include <algorithm>
#include <utility>

#include "workbench/editor/editor_set.h"
#include "workbench/editor/leftover_question.h"
#include "workbench/windows/file_dialogs.h"
#include "workbench/windows/path_text.h"

namespace workbench {

FileFault EditorSet::readText(const std::string& path, std::string* bytes, FileStamp* stamp) {
  // Stamped first: a change between the two is noticed later.
  *stamp = store_.stamp(path);
  const FileFault fault = store_.read(path, kLargestText, bytes);
  const auto breaks =
      std::count_if(bytes->begin(), bytes->end(), [](char c) { return c == '\r' || c == '\n'; });
  return fault == FileFault::kNone && breaks > kMostLines ? FileFault::kTooLarge : fault;
}

// True when the text of a leftover became a change of the document.
bool EditorSet::offerLeftovers(OpenFile& file) {
  const std::string now = file.document.bytes();
  std::string bytes;
  if (!askForLeftover(
          store_, file.path, file.stamp.exists ? &now : nullptr,
          [this](const std::string& text, UINT buttons) { return ask(text, buttons); }, &bytes,
          &file.leftover)) {
    return false;
  }
  file.document.renew(bytes);
  file.document.markUnsaved();
  return true;
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
  if (!file.leftover.empty()) {
    // Its text, or what became of it, is in the file now.
    store_.remove(std::exchange(file.leftover, {}));
  }
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

void EditorSet::checkDisk(bool patiently) {
  if (checking_) {
    return;
  }
  checking_ = true;
  for (const auto& file : files()) {
    // A question about one may have closed others.
    if (!viewsOf(*file).empty()) {
      checkOnDisk(*file, patiently);
    }
  }
  checking_ = false;
}

void EditorSet::checkOnDisk(OpenFile& file, bool patiently) {
  const FileStamp now = store_.stamp(file.path);
  const bool was_missed = std::exchange(file.missed, !now.exists);
  if (file.untitled || now.sameContent(file.noticed)) {
    return;
  }
  if (!now.exists && patiently && !was_missed) {
    // Another program may be about to put a new one there.
    return;
  }
  file.noticed = now;
  if (!now.exists) {
    file.document.markUnsaved();
    ask(file.path + " is no longer on the disk. Its text stays in the editor.",
        MB_OK | MB_ICONWARNING);
    return;
  }
  if (file.document.modified()) {
    askToReload(file, " was changed by another program.\n\nRead it again and lose the ");
  } else {
    readAgain(file);
  }
}

void EditorSet::reload(OpenFile& file) {
  if (file.document.modified()) {
    askToReload(file, " has changes that are not saved.\n\nRead it again and lose the ");
  } else {
    readAgain(file);
  }
}

void EditorSet::askToReload(OpenFile& file, const char* question) {
  // It may come up under typing fingers.
  if (ask(file.path + question + "changes made here?",
          MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES &&
      !viewsOf(file).empty()) {
    readAgain(file);
  }
}

void EditorSet::readAgain(OpenFile& file) {
  std::string bytes;
  FileStamp stamp;
  const FileFault fault = readText(file.path, &bytes, &stamp);
  if (fault != FileFault::kNone) {
    ask(describeFault(fault, file.path), MB_OK | MB_ICONERROR);
    return;
  }
  file.stamp = file.noticed = stamp;
  struct Kept {
    TextWindow& view;
    Place caret;
    int top;
  };
  std::vector<Kept> views;
  for (EditorChild* view : viewsOf(file)) {
    views.push_back({view->textView(), view->textView().caret(), view->textView().topLine()});
  }
  // What was here before can be had back by undoing.
  const DocumentChange change = file.document.renew(bytes);
  file.document.markSaved();
  for (const Kept& each : views) {
    if (!(each.caret < change.from) && each.caret < change.old_end) {
      each.view.setCaret(file.document.clamp(each.caret));
    }
    const bool above = each.top >= change.old_end.line;
    each.view.setTopLine(each.top + (above ? change.new_end.line - change.old_end.line : 0));
  }
  if (told_) {
    told_(file.path + " was read again from the disk");
  }
}

bool EditorSet::renameFile(const std::string& from, const std::string& to) {
  if (!samePath(from, to) && find(to) != nullptr) {
    ask(to + " is open in another editor. Close it first, or choose another name.",
        MB_OK | MB_ICONERROR);
    return false;
  }
  const FileFault fault = store_.move(from, to);
  if (fault != FileFault::kNone) {
    ask("The file was not renamed. " + describeFault(fault, from), MB_OK | MB_ICONERROR);
    return false;
  }
  // Its stamps hold on: neither the content nor its time has changed.
  for (const auto& file : files()) {
    if (samePath(file->path, from)) {
      file->path = to;
      renumber(*file);
    }
  }
  return true;
}

}  // namespace workbench
