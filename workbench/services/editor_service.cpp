#include "workbench/services/editor_service.h"

#include <algorithm>
#include <string>
#include <utility>

#include "workbench/editor/editor_set.h"
#include "workbench/events/event_log.h"
#include "workbench/main_window.h"
#include "workbench/paths.h"
#include "workbench/services/ide_string.h"

namespace workbench {

EditorService::EditorService(const ServiceContext& context)
    : Service(context.live, "editor service", ideapi::kEditorService), context_(context) {}

EditorView STDMETHODCALLTYPE EditorService::FindView(IIdeString* file) {
  const std::string name = textOf(file);
  const EditorChild* child =
      name.empty() ? nullptr : context_.editors.find(context_.paths.resolve(name));
  return child != nullptr ? child->handle() : 0;
}

EditorChild* EditorService::current() {
  return depth_ > 0 ? context_.editors.byHandle(current_) : nullptr;
}

EditorService::Touched* EditorService::touched(EditorView view) {
  const auto found = std::find_if(touched_.begin(), touched_.end(),
                                  [view](const Touched& each) { return each.view == view; });
  return found == touched_.end() ? nullptr : &*found;
}

void STDMETHODCALLTYPE EditorService::BeginTransaction() {
  ++depth_;
}

void STDMETHODCALLTYPE EditorService::EndTransaction() {
  if (depth_ == 0 || --depth_ > 0) {
    return;
  }
  current_ = 0;
  // Repainting and events may lead back here, so the list is taken first.
  const std::vector<Touched> done = std::exchange(touched_, {});
  for (const Touched& each : done) {
    each.file->document.endTransaction();
  }
  for (const Touched& each : done) {
    EditorChild* child = context_.editors.byHandle(each.view);
    if (child == nullptr) {
      continue;
    }
    child->textView().holdPainting(false);
    if (each.shown) {
      child->textView().showHit();
      context_.log.emit(Event("editor")
                            .text("file", child->file())
                            .number("line", child->textView().caret().line + 1));
    }
  }
}

int STDMETHODCALLTYPE EditorService::MakeCurrent(EditorView view) {
  EditorChild* child = context_.editors.byHandle(view);
  if (child == nullptr) {
    return 0;
  }
  if (depth_ > 0) {
    current_ = view;
    if (touched(view) == nullptr) {
      touched_.push_back({view, child->sharedFile()});
      child->openFile().document.beginTransaction();
      child->textView().holdPainting(true);
    }
  }
  return 1;
}

void STDMETHODCALLTYPE EditorService::GetCursor(int* column, int* line) {
  *column = *line = 0;
  if (EditorChild* child = current()) {
    child->caret(line, column);
  }
}

void STDMETHODCALLTYPE EditorService::SetCursor(int column, int line) {
  if (EditorChild* child = current()) {
    child->setCaret(line, column);
  }
}

void STDMETHODCALLTYPE EditorService::ShowLine(int line) {
  if (EditorChild* child = current()) {
    child->textView().showLine(line - 1);
    touched(current_)->shown = true;
  }
}

IIdeString* STDMETHODCALLTYPE EditorService::GetLine(int line) {
  EditorChild* child = current();
  if (child == nullptr || line < 1 || line > child->openFile().document.lineCount()) {
    return nullptr;
  }
  const Document& document = child->openFile().document;
  return handOut(context_.live, toAnsi(document.line(line - 1), document.encoding()));
}

void STDMETHODCALLTYPE EditorService::InsertText(IIdeString* text) {
  if (EditorChild* child = current()) {
    child->textView().insertBefore(fromAnsi(textOf(text), child->openFile().document.encoding()));
  }
}

int STDMETHODCALLTYPE EditorService::SaveModified(IIdeString** names) {
  std::vector<std::string> saved;
  std::string failure;
  context_.editors.saveQuietly(&saved, &failure);
  if (!failure.empty()) {
    context_.window.setStatus(failure);
  }
  if (names != nullptr) {
    *names = nullptr;
    std::string list;
    for (const std::string& name : saved) {
      list += list.empty() ? "" : ", ";
      list += name;
    }
    if (!saved.empty()) {
      *names = handOut(context_.live, list);
    }
  }
  return static_cast<int>(saved.size());
}

}  // namespace workbench
