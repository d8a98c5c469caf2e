#include "addon/addon.h"

#include <ole2.h>

#include <new>

#include "addon/addon_hook_host.h"
#include "addon/completion/completion_settings.h"
#include "addon/foundation/settings_store.h"
#include "addon/ide/access.h"
#include "addon/ide/environment.h"
#include "addon/ide/help_file.h"
#include "addon/ide/hook_set.h"
#include "addon/ide/koptions.h"
#include "addon/ide/service_holder.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/quick_find.h"
#include "addon/topbar/bar_window.h"
#include "addon/topbar/top_bar.h"

namespace kesto {
namespace {

constexpr char kSettingsRoot[] = R"(SOFTWARE\Borland\Borland C++\5.0\Ide\AddOns\Kestoaob)";

HWND barWindow = nullptr;
bool oleInitialised = false;
AddonHookHost hookHost;

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
  create(completionSettings);
  create(editorServiceHolder);
  create(statusLineServiceHolder);

  ShowWindow(barWindow, topBar->enabled() ? SW_SHOW : SW_HIDE);
  create(hookSet, barWindow, hookHost);
  create(optionsServiceHolder);
}

void stopAddon() {
  destroy(quickFind);
  destroy(hookSet);
  destroy(helpFile);
  destroy(editorNavigation);
  destroy(topBar);
  destroy(completionSettings);
  destroy(editorServiceHolder);
  destroy(statusLineServiceHolder);
  DestroyWindow(barWindow);
  barWindow = nullptr;
  destroy(optionsServiceHolder);
  releaseIde();
}

}  // namespace kesto
