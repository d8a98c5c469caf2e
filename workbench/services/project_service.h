// The open project for add-ons. User-interface thread only.
#pragma once

#include <string>

#include "workbench/project/project_view.h"
#include "workbench/services/client_list.h"
#include "workbench/services/counted.h"
#include "workbench/services/service_context.h"

namespace workbench {

class ToolService;

class ProjectService final : public Service<IProjectService> {
 public:
  // The tools must outlive the service.
  ProjectService(const ServiceContext& context, ToolService& tools);

  void STDMETHODCALLTYPE AddClient(IProjectClient* client) override;
  void STDMETHODCALLTYPE RemoveClient(IProjectClient* client) override;
  int STDMETHODCALLTYPE IsProjectLoaded() override;
  IIdeString* STDMETHODCALLTYPE GetProjectFile() override;
  ProjectNode STDMETHODCALLTYPE GetTopNode() override;
  ProjectNode STDMETHODCALLTYPE GetFirstChild(ProjectNode node) override;
  ProjectNode STDMETHODCALLTYPE GetNextSibling(ProjectNode node) override;
  ProjectNode STDMETHODCALLTYPE GetNodeParent(ProjectNode node) override;
  ProjectNode STDMETHODCALLTYPE FindNode(IIdeString* file) override;
  IIdeString* STDMETHODCALLTYPE GetNodeName(ProjectNode node) override;
  IIdeString* STDMETHODCALLTYPE GetNodeType(ProjectNode node) override;
  IIdeString* STDMETHODCALLTYPE GetNodeDescription(ProjectNode node) override;
  ProjectNode STDMETHODCALLTYPE AddNode(ProjectNode parent, IIdeString* name,
                                        IIdeString* type) override;
  int STDMETHODCALLTYPE RemoveNode(ProjectNode node) override;
  int STDMETHODCALLTYPE OpenNode(ProjectNode node, int alternative) override;
  int STDMETHODCALLTYPE GetOption(IIdeString* name, const void** data) override;
  OptionHandle STDMETHODCALLTYPE SetOption(IIdeString* name, const void* data, int size) override;
  void STDMETHODCALLTYPE CommitOption(OptionHandle option) override;

  // Edits from within the program; clients hear of them as of those from outside. As there,
  // add takes names from the project's folder on, and types by extension.
  ProjectNode add(ProjectNode parent, const std::string& name, const std::string& type);
  bool rename(ProjectNode node, const std::string& name);
  bool describe(ProjectNode node, const std::string& description);
  bool setNodeOption(ProjectNode node, int kind, const std::string& text);

  // The project was loaded, or is about to be closed: tell the clients.
  void announceOpened();
  void announceClosed();
  // Null for none; it must outlive the service otherwise.
  void setView(ProjectView* view) { view_ = view; }
  ClientList<IProjectClient>& clients() { return clients_; }

 private:
  void tellChanged(ProjectNode node);
  void tellOpened(IProjectClient* client);

  ServiceContext context_;
  ToolService& tools_;
  ClientList<IProjectClient> clients_;
  ProjectView* view_ = nullptr;
  std::string option_read_;  // what GetOption last pointed into
};

}  // namespace workbench
