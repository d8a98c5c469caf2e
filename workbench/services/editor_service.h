// Buffers and views for add-ons. User-interface thread only.
#pragma once

#include <memory>
#include <vector>

#include "workbench/editor/editor_child.h"
#include "workbench/services/counted.h"
#include "workbench/services/service_context.h"

namespace workbench {

class EditorService final : public Service<IEditorService> {
 public:
  explicit EditorService(const ServiceContext& context);

  EditorView STDMETHODCALLTYPE FindView(IIdeString* file) override;
  void STDMETHODCALLTYPE BeginTransaction() override;
  void STDMETHODCALLTYPE EndTransaction() override;
  int STDMETHODCALLTYPE MakeCurrent(EditorView view) override;
  void STDMETHODCALLTYPE GetCursor(int* column, int* line) override;
  void STDMETHODCALLTYPE SetCursor(int column, int line) override;
  void STDMETHODCALLTYPE ShowLine(int line) override;
  IIdeString* STDMETHODCALLTYPE GetLine(int line) override;
  void STDMETHODCALLTYPE InsertText(IIdeString* text) override;
  int STDMETHODCALLTYPE SaveModified(IIdeString** names) override;

 private:
  // A view that the open transaction has touched.
  struct Touched {
    EditorView view;
    std::shared_ptr<OpenFile> file;
    bool shown = false;  // brought to a line
  };

  // Null outside a transaction and for a view that is gone.
  EditorChild* current();
  Touched* touched(EditorView view);

  ServiceContext context_;
  int depth_ = 0;
  EditorView current_ = 0;
  std::vector<Touched> touched_;
};

}  // namespace workbench
