#include "addon/ide/editor_operations.h"

#include <cstring>
#include <string>

#include "addon/foundation/path.h"
#include "addon/ide/completion_source.h"
#include "addon/ide/cursor_word.h"
#include "addon/ide/service_holder.h"
#include "addon/ide/status_line.h"

namespace kesto {

CompletionSource* completionSource = nullptr;

namespace {

constexpr size_t kLongestCompletedWord = 99;

// An editor transaction on the view of a file; false when there is no such view.
class EditorTransaction {
 public:
  explicit EditorTransaction(const char* file) {
    ComPtr<IEditorService> service = editorService();
    const ComPtr<IIdeString> name = makeIdeString(file);
    if (!service || !name) {
      return;
    }
    const EditorView view = service->FindView(name.get());
    if (view == 0) {
      return;
    }
    service->BeginTransaction();
    aimed_ = service->MakeCurrent(view) != 0;
    service_ = std::move(service);
  }
  ~EditorTransaction() {
    if (service_) {
      service_->EndTransaction();
    }
  }
  EditorTransaction(const EditorTransaction&) = delete;
  EditorTransaction& operator=(const EditorTransaction&) = delete;

  explicit operator bool() const { return aimed_; }
  IEditorService* operator->() const { return service_.get(); }

  std::string line(int number) const {
    const std::unique_ptr<char[]> text = takeIdeString(service_->GetLine(number));
    return text != nullptr ? std::string(text.get()) : std::string();
  }

 private:
  ComPtr<IEditorService> service_;
  bool aimed_ = false;
};

// False when nothing came of it: the IDE may ask about a file that is not to be changed.
bool insertAtCursor(const EditorTransaction& editor, const std::string& text, int column,
                    int line) {
  const ComPtr<IIdeString> string = makeIdeString(text.c_str());
  if (!string) {
    return false;
  }
  const std::string before = editor.line(line);
  editor->InsertText(string.get());
  if (editor.line(line) == before) {
    return false;
  }
  editor->SetCursor(column + static_cast<int>(text.size()), line);
  return true;
}

}  // namespace

void goToLine(const char* file, int line) {
  const EditorTransaction editor(file);
  if (editor) {
    editor->SetCursor(1, line);
    editor->ShowLine(line + 1);
  }
}

void wordAtCursor(const char* file, char (&output)[kWordBufferSize]) {
  output[0] = '\0';
  const EditorTransaction editor(file);
  if (!editor) {
    return;
  }
  int column = 0;
  int line = 0;
  editor->GetCursor(&column, &line);
  const std::string text = editor.line(line);
  const std::string_view word = wordAround(text, column);
  memcpy(output, word.data(), word.size());
  output[word.size()] = '\0';
  if (column > 1) {
    editor->SetCursor(column, line);
  }
}

void completeAtCursor(const char* file) {
  const std::string name(fileWithoutLine(file));
  const EditorTransaction editor(name.c_str());
  if (!editor) {
    return;
  }
  int column = 0;
  int line = 0;
  editor->GetCursor(&column, &line);
  const std::string text = editor.line(line);
  const std::string_view word = wordBefore(text, column);
  if (word.empty() || word.size() > kLongestCompletedWord) {
    return;
  }
  const CompletionStep step =
      completionSource != nullptr ? completionSource->strike(word) : CompletionStep{};
  if (!step.text.empty() && !insertAtCursor(editor, step.text, column, line)) {
    return;
  }
  showStatus(step.status.c_str());
}

}  // namespace kesto
