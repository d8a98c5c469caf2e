#include "workbench/services/small_services.h"

#include "workbench/main_window.h"
#include "workbench/project/project.h"
#include "workbench/services/ide_string.h"

namespace workbench {

StatusLineService::StatusLineService(const ServiceContext& context)
    : Service(context.live, "status line service", ideapi::kStatusLineService), context_(context) {}

void STDMETHODCALLTYPE StatusLineService::SetText(IIdeString* text) {
  context_.window.setStatus(textOf(text));
}

OptionsService::OptionsService(const ServiceContext& context)
    : Service(context.live, "options service", ideapi::kOptionsService), context_(context) {}

IIdeString* STDMETHODCALLTYPE OptionsService::GetNodeOption(ProjectNode node, int kind) {
  std::string folders;
  return context_.project.nodeFolders(node, kind, &folders) ? handOut(context_.live, folders)
                                                            : nullptr;
}

int STDMETHODCALLTYPE OptionsService::AddChapter(IMpdChapter* chapter) {
  return chapters_.add(chapter) ? 1 : 0;
}

int STDMETHODCALLTYPE OptionsService::RemoveChapter(IMpdChapter* chapter) {
  return chapters_.remove(chapter) ? 1 : 0;
}

MakeService::MakeService(const ServiceContext& context)
    : ClientService(context.live, "make service", ideapi::kMakeService) {}

ProjectSaveService::ProjectSaveService(const ServiceContext& context)
    : ClientService(context.live, "project save service", ideapi::kProjectSaveService) {}

}  // namespace workbench
