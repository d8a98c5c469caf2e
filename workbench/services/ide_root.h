// The root interface that an add-on receives, with all services behind it.
// User-interface thread only.
#pragma once

#include "workbench/services/counted.h"
#include "workbench/services/editor_service.h"
#include "workbench/services/message_service.h"
#include "workbench/services/project_service.h"
#include "workbench/services/service_context.h"
#include "workbench/services/small_services.h"
#include "workbench/services/tool_service.h"

namespace workbench {

class IdeRoot final : public Service<IIde> {
 public:
  explicit IdeRoot(const ServiceContext& context);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  IIdeString* STDMETHODCALLTYPE CreateIdeString() override;
  IFileStream* STDMETHODCALLTYPE CreateFileStream() override;

  OptionsService& options() { return options_; }
  MakeService& make() { return make_; }
  ProjectService& project() { return project_; }
  ProjectSaveService& projectSave() { return project_save_; }
  ToolService& tools() { return tools_; }

  // Writes a "leak" event for each kind of object still referenced, and for the
  // clients that no one took back.
  void reportLeaks();

 private:
  ServiceContext context_;
  EditorService editor_;
  MessageService message_;
  StatusLineService status_;
  OptionsService options_;
  MakeService make_;
  ToolService tools_;
  ProjectService project_;
  ProjectSaveService project_save_;
};

}  // namespace workbench
