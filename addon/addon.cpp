#include "addon/addon.h"

#include <ole2.h>

#include <new>

#include "addon/addon_hook_host.h"
#include "addon/behaviours/general_behaviours.h"
#include "addon/completion/completion_engine.h"
#include "addon/delivery/delivery.h"
#include "addon/foundation/file_system_win.h"
#include "addon/foundation/settings_store.h"
#include "addon/groupware/groupware_project.h"
#include "addon/groupware/groupware_settings.h"
#include "addon/groupware/quick_add_dialog.h"
#include "addon/html/documentation_run.h"
#include "addon/html/html_settings.h"
#include "addon/ide/access.h"
#include "addon/ide/current_project.h"
#include "addon/ide/environment.h"
#include "addon/ide/help_file.h"
#include "addon/ide/hook_set.h"
#include "addon/ide/koptions.h"
#include "addon/ide/project_client.h"
#include "addon/ide/service_holder.h"
#include "addon/ide/tool_table.h"
#include "addon/mail/mail.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/quick_find.h"
#include "addon/pages/addon_chapter.h"
#include "addon/project_order.h"
#include "addon/rcgen/rc_generator.h"
#include "addon/tasks/notifications.h"
#include "addon/tasks/task_dialog.h"
#include "addon/tasks/task_flash.h"
#include "addon/tasks/task_list.h"
#include "addon/topbar/bar_menu.h"
#include "addon/topbar/bar_window.h"
#include "addon/topbar/recent_files.h"
#include "addon/topbar/top_bar.h"

namespace kesto {
namespace {

constexpr char kSettingsRoot[] = R"(SOFTWARE\Borland\Borland C++\5.0\Ide\AddOns\Kestoaob)";

HWND barWindow = nullptr;
bool oleInitialised = false;
AddonHookHost hookHost;
FileSystemWin fileSystem;

class AddonMenuFeatures : public MenuFeatures {
 public:
  bool groupwareActive() const override {
    return groupwareSettings != nullptr && groupwareSettings->enabled.value != 0;
  }
  bool htmlActive() const override { return htmlSettings != nullptr && htmlSettings->enabled(); }
  void quickAdd(unsigned node) override { showQuickAdd(node); }
};
AddonMenuFeatures menuFeatures;

// Only where the end of a task is told to others, and not at once.
std::string pendingNotifications(const std::string& project_file) {
  const bool with_delivery = taskList != nullptr && taskList->settings.mail_on.value != 0 &&
                             taskList->settings.key_is_delivery.value != 0;
  return with_delivery ? notificationPath(project_file).text() : "";
}

// A slot that memory was too short for stays null, and the start goes on.
template <class T, class... Arguments>
void create(T*& slot, Arguments&&... arguments) {
  slot = new (std::nothrow) T(std::forward<Arguments>(arguments)...);
}

template <class T>
void destroy(T*& slot) {
  delete slot;
  slot = nullptr;
}

void createTasks() {
  create(taskList, fileSystem);
  if (taskList == nullptr) {
    return;
  }
  taskList->settings.section.read();
  taskList->setTypes(taskList->settings.types.value);
  create(taskFlash, barWindow, fileSystem, *taskList);
  create(taskDialog, fileSystem, *taskList);
  // The clients may have been told of an open project before.
  if (isProjectOpen()) {
    taskList->setPath(taskFilePath(projectFile()).view());
    taskList->load();
    if (taskFlash != nullptr) {
      taskFlash->postWhenDue();
    }
  }
}

void destroyTasks() {
  destroy(taskDialog);
  destroy(taskFlash);
  if (taskList != nullptr) {
    taskList->settings.types.value = taskList->joinedTypes().text();
    taskList->settings.section.write();
  }
  destroy(taskList);
}

}  // namespace

bool attachModule(HINSTANCE instance) {
  create(addonEnvironment);
  if (addonEnvironment == nullptr) {
    return false;
  }
  settings().setRoot(kSettingsRoot);
  addonEnvironment->instance = instance;
  probeEnvironment(*addonEnvironment);
  oleInitialised = SUCCEEDED(OleInitialize(nullptr));
  return oleInitialised;
}

void detachModule() {
  // A class outlives its module on NT; its procedure would not.
  if (addonEnvironment != nullptr) {
    unregisterBarClass(addonEnvironment->instance);
  }
  destroy(addonEnvironment);
  if (oleInitialised) {
    OleUninitialize();
    oleInitialised = false;
  }
}

void startAddon(IIde* ide) {
  storeIde(ide);
  probeEnvironment(*addonEnvironment);
  const HINSTANCE instance = addonEnvironment->instance;
  const bool new_shell = addonEnvironment->new_shell != FALSE;
  registerBarClass(instance);
  barWindow = createBarWindow(instance, new_shell);

  create(quickFind, barWindow);
  create(helpFile, instance, barWindow);
  create(editorNavigation, barWindow, new_shell);
  create(topBar, new_shell, barWindow);
  create(barMenu, barWindow, menuFeatures);
  create(completionEngine);
  create(generalBehaviours);
  create(rcGenerator);
  create(delivery);
  notificationsToMail = pendingNotifications;
  create(editorServiceHolder);
  create(statusLineServiceHolder);
  create(toolTable);

  ShowWindow(barWindow, topBar->enabled() ? SW_SHOW : SW_HIDE);
  create(hookSet, barWindow, hookHost);
  projectOrder = &kProjectOrder;
  makeOrder = &kMakeOrder;
  create(projectTestA);
  if (projectTestA != nullptr) {
    projectTestA->registerClients();
  }
  // A project that is open by now has said whether it wants the tool.
  if (delivery != nullptr && !isProjectOpen()) {
    delivery->registerTool();
  }
  create(recentFiles, barWindow);
  // The clients may have been told of an open project before the lists were there.
  if (recentFiles != nullptr && isProjectOpen()) {
    recentFiles->projects().remove(projectFile());
  }
  create(optionsServiceHolder);
  create(mail);
  runOnOpenProject(readMailRecipients);
  createTasks();
  create(groupwareSettings);
  create(htmlSettings);
  create(groupwareProject, projectTestA != nullptr ? projectTestA->service() : nullptr);
  create(documentationRun, barWindow);
  addOptionsChapter();
  // The IDE may have no project to tell of; the menus come without one as well.
  PostMessageA(barWindow, WM_COMMAND, kCommandRebuildMenu, 0);
}

void stopAddon() {
  // While there is still a status line to tell of it.
  if (documentationRun != nullptr) {
    documentationRun->finish();
  }
  if (recentFiles != nullptr) {
    recentFiles->save();
  }
  destroy(recentFiles);
  destroy(mail);
  destroy(quickFind);
  destroy(delivery);
  destroy(hookSet);
  destroy(helpFile);
  destroy(editorNavigation);
  destroy(barMenu);
  destroy(topBar);
  destroy(completionEngine);
  destroy(editorServiceHolder);
  destroy(rcGenerator);
  destroy(generalBehaviours);
  destroy(statusLineServiceHolder);
  destroy(toolTable);
  destroyTasks();
  destroy(groupwareSettings);
  destroy(documentationRun);
  destroy(htmlSettings);
  destroy(groupwareProject);
  DestroyWindow(barWindow);
  barWindow = nullptr;
  if (projectTestA != nullptr) {
    projectTestA->unregisterClients();
  }
  removeOptionsChapter();
  destroy(optionsServiceHolder);
  destroy(projectTestA);
  projectOrder = nullptr;
  makeOrder = nullptr;
  releaseIde();
}

}  // namespace kesto
