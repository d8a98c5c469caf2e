// Finding and replacing in the active editor.
#include <string>

#include "workbench/app/application.h"
#include "workbench/windows/command_ids.h"

namespace workbench {
namespace {

constexpr std::size_t kLongestProposal = 255;

// What is looked for in the bytes of a text so encoded.
TextSearch inText(const TextSearch& search, const Document& document) {
  TextSearch result = search;
  result.text = fromAnsi(search.text, document.encoding());
  return result;
}

}  // namespace

void Application::findCommand(int id, EditorChild& child) {
  if (id == CM_EDIT_FIND_NEXT || id == CM_EDIT_FIND_PREVIOUS) {
    findNext(find_.backward != (id == CM_EDIT_FIND_PREVIOUS));
    return;
  }
  // A selection within a line is what is looked for, a longer one where.
  const std::string selected = child.selection();
  const bool lines = selected.find_first_of("\r\n") != std::string::npos;
  if (!selected.empty() && !lines && selected.size() <= kLongestProposal &&
      selected.find('\0') == std::string::npos) {
    find_.search.text = selected;
  }
  if (id == CM_EDIT_REPLACE) {
    const unsigned int editor = child.handle();
    askReplace(frame_.window(), &find_, lines,
               [this, editor](ReplaceWhat what) { replace(editor, what); });
  } else if (askFind(frame_.window(), &find_)) {
    findNext(find_.backward);
  }
}

void Application::findNext(bool backward) {
  if (editors_.active() == nullptr ||
      (find_.search.text.empty() && !askFind(frame_.window(), &find_))) {
    return;
  }
  EditorChild* child = editors_.active();
  if (child != nullptr &&
      !child->textView().findText(inText(find_.search, child->openFile().document), backward)) {
    setStatus("\"" + find_.search.text + "\" was not found");
    MessageBeep(MB_ICONWARNING);
  }
}

void Application::replace(unsigned int editor, ReplaceWhat what) {
  EditorChild* child = editors_.byHandle(editor);
  if (child == nullptr) {
    return;
  }
  TextWindow& text = child->textView();
  const Document& document = child->openFile().document;
  const TextSearch search = inText(find_.search, document);
  const std::string with = fromAnsi(find_.replacement, document.encoding());
  int count = 0;
  if (what == ReplaceWhat::kNext) {
    if (text.replaceNext(search, with)) {
      return;
    }
  } else {
    count = text.replaceAll(search, with, what == ReplaceWhat::kAllSelected);
  }
  if (count < 0) {
    return;
  }
  if (count == 0) {
    setStatus("\"" + find_.search.text + "\" was not found");
    MessageBeep(MB_ICONWARNING);
  } else {
    setStatus("Replaced " + std::to_string(count) + (count == 1 ? " place" : " places"));
  }
}

}  // namespace workbench
