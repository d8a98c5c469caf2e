#include "addon/project_order.h"

#include "addon/behaviours/general_behaviours.h"
#include "addon/delivery/delivery.h"
#include "addon/delivery/project_options.h"
#include "addon/groupware/groupware_project.h"
#include "addon/groupware/project_options.h"
#include "addon/html/documentation_run.h"
#include "addon/html/html_settings.h"
#include "addon/html/project_options.h"
#include "addon/ide/current_project.h"
#include "addon/ide/make_registration.h"
#include "addon/mail/mail.h"
#include "addon/mail/project_options.h"
#include "addon/rcgen/project_options.h"
#include "addon/rcgen/rc_generator.h"
#include "addon/tasks/task_dialog.h"
#include "addon/tasks/task_flash.h"
#include "addon/tasks/task_list.h"
#include "addon/topbar/bar_menu.h"
#include "addon/topbar/project_options.h"
#include "addon/topbar/recent_files.h"
#include "addon/topbar/top_bar.h"

namespace kesto {
namespace {

using Work = const ProjectWork&;

// The bar is created wider than its margins; the first project puts it in its place.
void placeBar(Work) {
  if (topBar != nullptr) {
    topBar->placeFirst();
  }
}

void collapseBar(Work) {
  if (topBar != nullptr) {
    topBar->collapse();
  }
}

void forgetRecentProject(Work work) {
  if (recentFiles != nullptr) {
    recentFiles->projects().remove(work.file);
  }
}

void recordRecentProject(Work work) {
  if (recentFiles != nullptr) {
    recentFiles->projects().addNew(work.file);
  }
}

// A project that does not load has no file for them, least of all that of the one before.
void emptyTasks(Work) {
  if (taskList != nullptr) {
    taskList->clear();
    taskList->setPath({});
  }
}

void loadTasks(Work work) {
  if (taskList != nullptr) {
    taskList->setPath(taskFilePath(work.file).view());
    taskList->load();
  }
}

void flashWhenDue(Work) {
  if (taskFlash != nullptr) {
    taskFlash->postWhenDue();
  }
}

// It writes the tasks, while they and their file are still those of its project.
void closeTaskDialog(Work) {
  if (taskDialog != nullptr) {
    taskDialog->close();
  }
}

void closeFlash(Work) {
  if (taskFlash != nullptr) {
    taskFlash->close();
  }
}

void resetAutoSave(Work) {
  if (generalBehaviours != nullptr) {
    generalBehaviours->resetAutoSave();
  }
}

void readBarSettings(Work) {
  if (topBar != nullptr) {
    topBar->readMenuSettings();
  }
}

void viewProject(Work) {
  if (generalBehaviours != nullptr) {
    generalBehaviours->viewOnOpen();
  }
}

void rebuildBarMenu(Work) {
  if (barMenu != nullptr) {
    barMenu->rebuild();
  }
}

// Without the object the project keeps what it has.
void writeMailRecipients(Work work) {
  if (mail != nullptr) {
    writeRecipients(work.options, mail->recipients());
  }
}

void forgetMailRecipients(Work) {
  if (mail != nullptr) {
    mail->recipients().clear();
  }
}

void applyDeliveryTool(Work) {
  if (delivery != nullptr) {
    delivery->applyTool();
  }
}

void unregisterDeliveryTool(Work) {
  if (delivery != nullptr) {
    delivery->unregisterTool();
  }
}

void tellGroupware(Work) {
  if (groupwareProject != nullptr) {
    groupwareProject->projectChanged();
  }
}

constexpr ProjectStep kAnnounced[] = {closeTaskDialog,     emptyTasks,    placeBar,
                                      forgetRecentProject, resetAutoSave, readBarSettings};

constexpr ProjectStep kOpened[] = {
    loadTasks,
    enterProjectDirectory,
    viewProject,
    [](Work) { registerMakeClient(createMakeClient); },
    tellGroupware,
    [](Work work) { readBarConstruction(work.options); },
    [](Work work) { readBarHidesWithView(work.options); },
    [](Work work) { rcgenProjectOptions.read(work.options); },
    [](Work work) { htmlProjectOptions.read(work.options); },
    [](Work work) { deliveryProjectOptions.readCount(work.options); },
    [](Work work) { deliveryProjectOptions.tool_present.read(work.options); },
    applyDeliveryTool,
    [](Work work) { deliveryProjectOptions.readGroups(work.options); },
    [](Work work) { groupwareProjectOptions.server_directory.read(work.options); },
    readMailRecipients,
    flashWhenDue,
};

constexpr ProjectStep kSettled[] = {rebuildBarMenu};

constexpr ProjectStep kClosing[] = {collapseBar, closeTaskDialog, closeFlash};

constexpr ProjectStep kClosingLoaded[] = {resetAutoSave, [](Work) { unregisterMakeClient(); },
                                          unregisterDeliveryTool, recordRecentProject};

constexpr ProjectStep kClosed[] = {tellGroupware, forgetMailRecipients};

// The project's own menus go with it.
constexpr ProjectStep kGone[] = {rebuildBarMenu};

constexpr ProjectStep kSaved[] = {
    [](Work work) { writeBarConstruction(work.options); },
    [](Work work) { writeBarHidesWithView(work.options); },
    [](Work work) { deliveryProjectOptions.tool_present.write(work.options); },
    [](Work work) { deliveryProjectOptions.writeGroups(work.options); },
    writeMailRecipients,
    [](Work work) { groupwareProjectOptions.server_directory.write(work.options); },
    [](Work work) { rcgenProjectOptions.write(work.options); },
    [](Work work) { htmlProjectOptions.write(work.options); },
    [](Work work) { deliveryProjectOptions.writeActive(work.options); },
};

void nodeChanged(ProjectNode node, const char* name) {
  if (barMenu != nullptr) {
    barMenu->nodeChanged(node, name);
  }
}

void treeChanged() {
  if (barMenu != nullptr) {
    barMenu->rebuildSoon();
  }
}

void actOnMakeStart() {
  if (generalBehaviours != nullptr) {
    generalBehaviours->makeStarted();
  }
}

void generateFromResources() {
  if (rcGenerator != nullptr) {
    rcGenerator->run(projectDirectory());
  }
}

void actOnMakeEnd(int) {
  if (generalBehaviours != nullptr) {
    generalBehaviours->makeEnded();
  }
}

void generateAfterMake(int result) {
  if (result == kMakeSucceeded && documentationRun != nullptr && htmlSettings != nullptr &&
      htmlSettings->enabled() && htmlSettings->automatic()) {
    documentationRun->generate();
  }
}

constexpr MakeStep kMakeStarted[] = {actOnMakeStart, generateFromResources};
constexpr MakeEndStep kMakeEnded[] = {actOnMakeEnd, generateAfterMake};

}  // namespace

void readMailRecipients(const ProjectWork& work) {
  if (mail != nullptr) {
    readRecipients(work.options, mail->recipients());
  }
}

constinit const ProjectOrder kProjectOrder = {kAnnounced,     kOpened,    kSettled, kClosing,
                                              kClosingLoaded, kClosed,    kGone,    kSaved,
                                              nodeChanged,    treeChanged};
constinit const MakeOrder kMakeOrder = {kMakeStarted, kMakeEnded};

}  // namespace kesto
