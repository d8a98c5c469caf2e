#include "addon/ide/project_client.h"

#include <new>
#include <string>

#include "addon/ide/current_project.h"
#include "addon/ide/make_registration.h"

namespace kesto {

const ProjectOrder* projectOrder = nullptr;
ProjectTestA* projectTestA = nullptr;

namespace {

class StoredOptions : public ProjectOptionStore {
 public:
  explicit StoredOptions(IProjectService* service) : service_(service) {}

  int get(const char* name, const void** data) override {
    *data = nullptr;
    const ComPtr<IIdeString> string = makeIdeString(name);
    return string ? service_->GetOption(string.get(), data) : 0;
  }
  void set(const char* name, const void* data, int size) override {
    const ComPtr<IIdeString> string = makeIdeString(name);
    const OptionHandle option = string ? service_->SetOption(string.get(), data, size) : 0;
    if (option != 0) {
      service_->CommitOption(option);
    }
  }

 private:
  IProjectService* service_;
};

void run(ProjectSteps ProjectOrder::*steps, const ProjectWork& work) {
  // The IDE may close within a step, and takes the order away.
  for (std::size_t i = 0; projectOrder != nullptr && i < (projectOrder->*steps).size(); ++i) {
    (projectOrder->*steps)[i](work);
  }
}

IProjectService* registeredService() {
  return projectTestA != nullptr ? projectTestA->service() : nullptr;
}

std::string fileOf(IProject* project) {
  const std::unique_ptr<char[]> file =
      project != nullptr ? takeIdeString(project->GetFileName()) : nullptr;
  return file != nullptr ? file.get() : "";
}

}  // namespace

void enterProjectDirectory(const ProjectWork& work) {
  std::string directory(work.file);
  const size_t end = directory.rfind('\\');
  if (end == std::string::npos) {
    return;
  }
  directory.resize(end);
  // A drive alone would mean the current directory on it.
  if (directory.empty() || directory.back() == ':') {
    directory += '\\';
  }
  SetCurrentDirectoryA(directory.c_str());
}

void STDMETHODCALLTYPE ProjectClientImpl::ProjectOpened(IProject* project) {
  if (project != nullptr) {
    project->AddRef();
  }
  project_ = ComPtr<IProject>(project);
  const std::string file = fileOf(project);
  setProjectFile(file);
  StoredOptions options(service_);
  const ProjectWork work = {service_, options, file.c_str()};
  run(&ProjectOrder::announced, work);
  if (service_->IsProjectLoaded() != 0) {
    run(&ProjectOrder::opened, work);
    setProjectOpen(true);
  }
  run(&ProjectOrder::settled, work);
}

void STDMETHODCALLTYPE ProjectClientImpl::ProjectClosed() {
  StoredOptions options(service_);
  const ProjectWork work = {service_, options, projectFile().c_str()};
  run(&ProjectOrder::closing, work);
  if (service_->IsProjectLoaded() != 0) {
    run(&ProjectOrder::closing_loaded, work);
  }
  run(&ProjectOrder::closed, work);
  setProjectOpen(false);
  run(&ProjectOrder::gone, work);
}

void STDMETHODCALLTYPE ProjectClientImpl::NodeChanged(ProjectNode node) {
  if (!isProjectOpen() || projectOrder == nullptr || projectOrder->node_changed == nullptr) {
    return;
  }
  if (const std::unique_ptr<char[]> name = takeIdeString(service_->GetNodeName(node))) {
    projectOrder->node_changed(node, name.get());
  }
}

void ProjectClientImpl::treeChanged() {
  if (isProjectOpen() && projectOrder != nullptr && projectOrder->tree_changed != nullptr) {
    projectOrder->tree_changed();
  }
}

void STDMETHODCALLTYPE ProjectClient2Impl::ProjectSaving() {
  saveProjectOptions();
}

void saveProjectOptions() {
  if (IProjectService* const service = registeredService()) {
    StoredOptions options(service);
    run(&ProjectOrder::saved, {service, options, projectFile().c_str()});
  }
}

void runOnOpenProject(ProjectStep step) {
  IProjectService* const service = registeredService();
  if (service != nullptr && isProjectOpen()) {
    StoredOptions options(service);
    step({service, options, projectFile().c_str()});
  }
}

ProjectTestA::ProjectTestA()
    : service_(getService<IProjectService>(ideapi::kProjectService)),
      save_service_(getService<IProjectSaveService>(ideapi::kProjectSaveService)) {}

ProjectTestA::~ProjectTestA() = default;

void ProjectTestA::registerClients() {
  if (service_ && !client_) {
    client_ = ComPtr<IProjectClient>(new (std::nothrow) ProjectClientImpl(service_.get()));
    if (client_) {
      service_->AddClient(client_.get());
    }
  }
  if (save_service_ && !save_client_) {
    save_client_ = ComPtr<IProjectSaveClient>(new (std::nothrow) ProjectClient2Impl);
    if (save_client_) {
      save_service_->AddClient(save_client_.get());
    }
  }
}

void ProjectTestA::unregisterClients() {
  if (client_) {
    service_->RemoveClient(client_.get());
    client_.reset();
  }
  if (save_client_) {
    save_service_->RemoveClient(save_client_.get());
    save_client_.reset();
  }
  // An IDE that ends with a project open does not tell of its closing any more.
  unregisterMakeClient();
  setProjectOpen(false);
}

void ProjectTestA::tellAdded(ProjectNode node) const {
  if (client_) {
    client_->NodeAdded(node);
  }
}

}  // namespace kesto
