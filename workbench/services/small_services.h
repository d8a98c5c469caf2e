// The services that hold little of their own: status line, options, make and
// project saving. User-interface thread only.
#pragma once

#include "workbench/services/client_list.h"
#include "workbench/services/counted.h"
#include "workbench/services/service_context.h"

namespace workbench {

class StatusLineService final : public Service<IStatusLineService> {
 public:
  explicit StatusLineService(const ServiceContext& context);
  void STDMETHODCALLTYPE SetText(IIdeString* text) override;

 private:
  ServiceContext context_;
};

class OptionsService final : public Service<IOptionsService> {
 public:
  explicit OptionsService(const ServiceContext& context);
  IIdeString* STDMETHODCALLTYPE GetNodeOption(ProjectNode node, int kind) override;
  int STDMETHODCALLTYPE AddChapter(IMpdChapter* chapter) override;
  int STDMETHODCALLTYPE RemoveChapter(IMpdChapter* chapter) override;
  ClientList<IMpdChapter>& chapters() { return chapters_; }

 private:
  ServiceContext context_;
  ClientList<IMpdChapter> chapters_;
};

class MakeService final : public Service<IMakeService> {
 public:
  explicit MakeService(const ServiceContext& context);
  void STDMETHODCALLTYPE AddClient(IMakeClient* client) override;
  void STDMETHODCALLTYPE RemoveClient(IMakeClient* client) override;
  ClientList<IMakeClient>& clients() { return clients_; }

 private:
  ClientList<IMakeClient> clients_;
};

class ProjectSaveService final : public Service<IProjectSaveService> {
 public:
  explicit ProjectSaveService(const ServiceContext& context);
  void STDMETHODCALLTYPE AddClient(IProjectSaveClient* client) override;
  void STDMETHODCALLTYPE RemoveClient(IProjectSaveClient* client) override;
  ClientList<IProjectSaveClient>& clients() { return clients_; }

 private:
  ClientList<IProjectSaveClient> clients_;
};

}  // namespace workbench
