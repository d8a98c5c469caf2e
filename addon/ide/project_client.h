// The add-on's clients of the IDE's project service: what happens when a project
// opens, closes, changes and is saved. This floor keeps what concerns the project
// itself; what the features do, and in which order, is filled in from above.
// User-interface thread only.
#pragma once

#include <span>

#include "addon/ide/access.h"
#include "addon/ide/project_options.h"
#include "addon/ide/unknown_imp.h"

namespace kesto {

// What a step may use; valid during the step.
struct ProjectWork {
  IProjectService* service;
  ProjectOptionStore& options;
  const char* file;  // full path of the project file
};

using ProjectStep = void (*)(const ProjectWork&);
using ProjectSteps = std::span<const ProjectStep>;

// The steps of each event, run from first to last.
struct ProjectOrder {
  ProjectSteps announced;       // a project was opened, whether it is loaded or not
  ProjectSteps opened;          // only when it is loaded
  ProjectSteps settled;         // last, loaded or not; the open flag is right by then
  ProjectSteps closing;         // a project closes, loaded or not
  ProjectSteps closing_loaded;  // only when it is still loaded
  ProjectSteps closed;          // last, loaded or not; the open flag is still set
  ProjectSteps gone;            // after the open flag was cleared
  ProjectSteps saved;           // the project takes the options in
  // While a project is open:
  void (*node_changed)(ProjectNode node, const char* name);
  void (*tree_changed)();  // a node came, or is about to go
};

// Filled in from above before the clients are registered; null: nothing but the
// project's own is done.
extern const ProjectOrder* projectOrder;

// A step: the folder of the project file becomes the process's current directory.
void enterProjectDirectory(const ProjectWork& work);

class ProjectClientImpl : public IUnknownImp<IProjectClient> {
 public:
  explicit ProjectClientImpl(IProjectService* service) : service_(service) {}

  void STDMETHODCALLTYPE ProjectOpened(IProject* project) override;
  void STDMETHODCALLTYPE ProjectClosed() override;
  void STDMETHODCALLTYPE NodeAdded(ProjectNode) override { treeChanged(); }
  void STDMETHODCALLTYPE NodeRemoved(ProjectNode) override { treeChanged(); }
  void STDMETHODCALLTYPE NodeOptionsChanged(ProjectNode) override {}
  void STDMETHODCALLTYPE NodeChanged(ProjectNode node) override;
  void STDMETHODCALLTYPE TargetChanged(ProjectNode) override {}

 private:
  static void treeChanged();

  ComPtr<IProject> project_;  // opened last
  IProjectService* service_;  // outlives the client's registration
};

class ProjectClient2Impl : public IUnknownImp<IProjectSaveClient> {
 public:
  void STDMETHODCALLTYPE ProjectSaving() override;
};

// The registration of both clients. The order of the virtual operations is fixed.
class ProjectTestA {
 public:
  ProjectTestA();
  ProjectTestA(const ProjectTestA&) = delete;
  ProjectTestA& operator=(const ProjectTestA&) = delete;

  virtual ~ProjectTestA();
  virtual void registerClients();
  virtual void unregisterClients();

  // Has the add-on take in a node that it added itself, whether the IDE tells of it or not.
  void tellAdded(ProjectNode node) const;
  // Null when the IDE has none.
  IProjectService* service() const { return service_.get(); }

 private:
  ComPtr<IProjectService> service_;
  ComPtr<IProjectSaveService> save_service_;
  ComPtr<IProjectClient> client_;
  ComPtr<IProjectSaveClient> save_client_;
};

// The lifecycle fills and clears the slot; null outside a session.
extern ProjectTestA* projectTestA;

// Writes all per-project options into the open project at once.
void saveProjectOptions();
// Runs one step on the open project once more, for a feature that was created after the
// project's opening was told; nothing while none is open.
void runOnOpenProject(ProjectStep step);

}  // namespace kesto
