#include "workbench/services/project_service.h"

#include "workbench/project/project.h"
#include "workbench/project/tool_table.h"
#include "workbench/services/ide_string.h"
#include "workbench/services/tool_service.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

class OpenProject final : public Transient<OpenProject, IProject> {
 public:
  OpenProject(LiveObjects& live, std::string file)
      : Transient(live, "project"), live_(live), file_(std::move(file)) {}
  IIdeString* STDMETHODCALLTYPE GetFileName() override { return handOut(live_, file_); }

 private:
  LiveObjects& live_;
  std::string file_;
};

}  // namespace

ProjectService::ProjectService(const ServiceContext& context, ToolService& tools)
    : Service(context.live, "project service", ideapi::kProjectService),
      context_(context),
      tools_(tools) {}

void ProjectService::tellOpened(IProjectClient* client) {
  auto* project = new OpenProject(context_.live, context_.project.file());
  client->ProjectOpened(project);
  project->Release();
}

void ProjectService::announceOpened() {
  clients_.each([this](IProjectClient* client) { tellOpened(client); });
}

void ProjectService::announceClosed() {
  clients_.each([](IProjectClient* client) { client->ProjectClosed(); });
}

void STDMETHODCALLTYPE ProjectService::AddClient(IProjectClient* client) {
  if (clients_.add(client) && context_.project.loaded()) {
    const Held<IProjectClient> held(client);
    tellOpened(client);
  }
}

void STDMETHODCALLTYPE ProjectService::RemoveClient(IProjectClient* client) {
  clients_.remove(client);
}

int STDMETHODCALLTYPE ProjectService::IsProjectLoaded() {
  return context_.project.loaded() ? 1 : 0;
}

IIdeString* STDMETHODCALLTYPE ProjectService::GetProjectFile() {
  return context_.project.loaded() ? handOut(context_.live, context_.project.file()) : nullptr;
}

ProjectNode STDMETHODCALLTYPE ProjectService::GetTopNode() {
  return context_.project.top();
}

ProjectNode STDMETHODCALLTYPE ProjectService::GetFirstChild(ProjectNode node) {
  return context_.project.firstChild(node);
}

ProjectNode STDMETHODCALLTYPE ProjectService::GetNextSibling(ProjectNode node) {
  return context_.project.nextSibling(node);
}

ProjectNode STDMETHODCALLTYPE ProjectService::GetNodeParent(ProjectNode node) {
  const NodeInfo* info = context_.project.node(node);
  return info != nullptr ? info->parent : 0;
}

ProjectNode STDMETHODCALLTYPE ProjectService::FindNode(IIdeString* file) {
  return context_.project.find(textOf(file));
}

IIdeString* STDMETHODCALLTYPE ProjectService::GetNodeName(ProjectNode node) {
  const NodeInfo* info = context_.project.node(node);
  return info != nullptr ? handOut(context_.live, info->name) : nullptr;
}

IIdeString* STDMETHODCALLTYPE ProjectService::GetNodeType(ProjectNode node) {
  const NodeInfo* info = context_.project.node(node);
  return info != nullptr ? handOut(context_.live, info->type) : nullptr;
}

IIdeString* STDMETHODCALLTYPE ProjectService::GetNodeDescription(ProjectNode node) {
  const NodeInfo* info = context_.project.node(node);
  return info != nullptr ? handOut(context_.live, info->description) : nullptr;
}

ProjectNode STDMETHODCALLTYPE ProjectService::AddNode(ProjectNode parent, IIdeString* name,
                                                      IIdeString* type) {
  return add(parent, textOf(name), textOf(type));
}

ProjectNode ProjectService::add(ProjectNode parent, const std::string& name,
                                const std::string& type) {
  Project& project = context_.project;
  const std::string known = type.empty() ? Project::typeFor(name) : type;
  const unsigned int node =
      name.empty() ? 0 : project.add(parent, project.fullName(parent, name, known), known);
  if (node != 0) {
    if (view_ != nullptr) {
      view_->nodeAdded(node);
    }
    clients_.each([node](IProjectClient* client) { client->NodeAdded(node); });
  }
  return node;
}

bool ProjectService::rename(ProjectNode node, const std::string& name) {
  const bool done = context_.project.rename(node, name);
  if (done) {
    tellChanged(node);
  }
  return done;
}

bool ProjectService::describe(ProjectNode node, const std::string& description) {
  const bool done = context_.project.describe(node, description);
  if (done) {
    tellChanged(node);
  }
  return done;
}

void ProjectService::tellChanged(ProjectNode node) {
  if (view_ != nullptr) {
    view_->nodeChanged(node);
  }
  clients_.each([node](IProjectClient* client) { client->NodeChanged(node); });
  const NodeInfo* info = context_.project.node(node);
  if (info != nullptr && isContainer(*info)) {
    clients_.each([node](IProjectClient* client) { client->TargetChanged(node); });
  }
}

bool ProjectService::setNodeOption(ProjectNode node, int kind, const std::string& text) {
  const bool done = context_.project.setNodeOption(node, kind, text);
  if (done) {
    clients_.each([node](IProjectClient* client) { client->NodeOptionsChanged(node); });
  }
  return done;
}

int STDMETHODCALLTYPE ProjectService::RemoveNode(ProjectNode node) {
  if (context_.project.node(node) == nullptr) {
    return 0;
  }
  // Told while the node can still be asked for its name.
  clients_.each([node](IProjectClient* client) { client->NodeRemoved(node); });
  const bool removed = context_.project.remove(node);
  if (removed && view_ != nullptr) {
    view_->nodeRemoved(node);
  }
  return removed ? 1 : 0;
}

int STDMETHODCALLTYPE ProjectService::OpenNode(ProjectNode node, int alternative) {
  const NodeInfo* info = context_.project.node(node);
  if (info == nullptr) {
    return kToolNotHandled;
  }
  const char* tool = alternative != 0 ? kEditTool : toolForType(info->type);
  // The tool may change the tree.
  const std::string name = info->name;
  return tool == nullptr ? kToolNotHandled : tools_.run(tool, name);
}

int STDMETHODCALLTYPE ProjectService::GetOption(IIdeString* name, const void** data) {
  const std::string* bytes = context_.project.option(textOf(name));
  option_read_ = bytes != nullptr ? *bytes : std::string();
  if (data != nullptr) {
    *data = option_read_.empty() ? nullptr : option_read_.data();
  }
  return static_cast<int>(option_read_.size());
}

OptionHandle STDMETHODCALLTYPE ProjectService::SetOption(IIdeString* name, const void* data,
                                                         int size) {
  if (name == nullptr || size < 0 || (data == nullptr && size > 0)) {
    return 0;
  }
  const std::string bytes =
      size > 0 ? std::string(static_cast<const char*>(data), static_cast<std::size_t>(size))
               : std::string();
  return context_.project.prepareOption(textOf(name), bytes);
}

void STDMETHODCALLTYPE ProjectService::CommitOption(OptionHandle option) {
  context_.project.commitOption(option);
}

}  // namespace workbench
