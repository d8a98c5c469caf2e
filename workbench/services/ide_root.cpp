#include "workbench/services/ide_root.h"

#include "workbench/events/event_log.h"
#include "workbench/services/file_stream.h"
#include "workbench/services/ide_string.h"

namespace workbench {

IdeRoot::IdeRoot(const ServiceContext& context)
    : Service(context.live, "ide", ideapi::kUnknown),
      context_(context),
      editor_(context),
      message_(context),
      status_(context),
      options_(context),
      make_(context),
      tools_(context),
      project_(context, tools_),
      project_save_(context) {}

HRESULT STDMETHODCALLTYPE IdeRoot::QueryInterface(REFIID id, void** result) {
  const struct {
    const GUID& id;
    IUnknown* service;
  } services[] = {
      {ideapi::kUnknown, this},
      {ideapi::kEditorService, &editor_},
      {ideapi::kMessageService, &message_},
      {ideapi::kStatusLineService, &status_},
      {ideapi::kOptionsService, &options_},
      {ideapi::kMakeService, &make_},
      {ideapi::kProjectService, &project_},
      {ideapi::kToolService, &tools_},
      {ideapi::kProjectSaveService, &project_save_},
  };
  *result = nullptr;
  for (const auto& each : services) {
    if (IsEqualGUID(id, each.id)) {
      each.service->AddRef();
      *result = each.service;
      return S_OK;
    }
  }
  return E_NOINTERFACE;
}

IIdeString* STDMETHODCALLTYPE IdeRoot::CreateIdeString() {
  return handOut(context_.live, "");
}

IFileStream* STDMETHODCALLTYPE IdeRoot::CreateFileStream() {
  return new FileStream(context_);
}

void IdeRoot::reportLeaks() {
  std::map<std::string, long> counts = context_.live.counts();
  counts["chapter"] = static_cast<long>(options_.chapters().size());
  counts["make client"] = static_cast<long>(make_.clients().size());
  counts["project client"] = static_cast<long>(project_.clients().size());
  counts["project save client"] = static_cast<long>(project_save_.clients().size());
  counts["tool"] = static_cast<long>(tools_.addonTools());
  for (const auto& [kind, count] : counts) {
    if (count != 0) {
      context_.log.emit(Event("leak").text("kind", kind).number("count", count));
    }
  }
}

}  // namespace workbench
