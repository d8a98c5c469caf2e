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

// A service that only keeps the list of its clients.
template <typename Interface, typename Client>
class ClientService : public Service<Interface> {
 public:
  void STDMETHODCALLTYPE AddClient(Client* client) override { clients_.add(client); }
  void STDMETHODCALLTYPE RemoveClient(Client* client) override { clients_.remove(client); }
  ClientList<Client>& clients() { return clients_; }

 protected:
  using Service<Interface>::Service;
  ~ClientService() = default;

 private:
  ClientList<Client> clients_;
};

class MakeService final : public ClientService<IMakeService, IMakeClient> {
 public:
  explicit MakeService(const ServiceContext& context);
};

class ProjectSaveService final : public ClientService<IProjectSaveService, IProjectSaveClient> {
 public:
  explicit ProjectSaveService(const ServiceContext& context);
};

}  // namespace workbench
