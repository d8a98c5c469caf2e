#include "tests/addon/bar_session.h"

#include "addon/behaviours/general_behaviours.h"
#include "addon/foundation/settings_store.h"
#include "addon/ide/project_client.h"
#include "addon/ide/service_holder.h"
#include "addon/ide/tool_table.h"
#include "addon/mail/mail.h"
#include "addon/project_order.h"
#include "addon/topbar/recent_files.h"
#include "addon/topbar/top_bar.h"
#include "doctest.h"
#include "tests/foundation/recorded_boxes.h"
#include "tests/foundation/registry_tree.h"

namespace {

constexpr char kRoot[] = "Software\\KestoAddonTest";

template <class T>
void drop(T*& slot) {
  delete slot;
  slot = nullptr;
}

}  // namespace

OwnSettings::OwnSettings() {
  clear();
  kesto::settings().setRoot(kRoot);
  // The windows of the tests are no other IDE.
  kesto::settings().writeInteger("General", "Unic", 0);
}

OwnSettings::~OwnSettings() {
  clear();
}

void OwnSettings::clear() {
  removeTree(HKEY_LOCAL_MACHINE, kRoot);
}

BarSession::BarSession() : references_before_(fake::live_references) {
  kesto::recorded_boxes.clear();
  kesto::box_answer = 1;
  ide.AddRef();
  kesto::storeIde(&ide);
}

BarSession::~BarSession() {
  destroy();
  kesto::releaseIde();
  CHECK(ide.project.clients.empty());
  CHECK(ide.project_save.clients.empty());
  CHECK(ide.make.clients.empty());
  CHECK(ide.editor.open_transactions == 0);
  CHECK(fake::live_references == references_before_);
}

void BarSession::create() {
  kesto::topBar = new kesto::TopBar(true, windows.bar);
  kesto::barMenu = new kesto::BarMenu(windows.bar, features);
  kesto::generalBehaviours = new kesto::GeneralBehaviours;
  kesto::editorServiceHolder = new kesto::EditorServiceHolder;
  kesto::statusLineServiceHolder = new kesto::StatusLineServiceHolder;
  kesto::toolTable = new kesto::ToolTable;
  kesto::projectOrder = &kesto::kProjectOrder;
  kesto::makeOrder = &kesto::kMakeOrder;
  kesto::projectTestA = new kesto::ProjectTestA;
  kesto::projectTestA->registerClients();
  kesto::recentFiles = new kesto::RecentFiles(windows.bar);
  kesto::mail = new kesto::Mail;
  kesto::barMenu->rebuild();
}

void BarSession::destroy() {
  if (kesto::projectTestA == nullptr) {
    return;
  }
  kesto::recentFiles->save();
  drop(kesto::recentFiles);
  drop(kesto::mail);
  drop(kesto::barMenu);
  drop(kesto::topBar);
  drop(kesto::editorServiceHolder);
  drop(kesto::generalBehaviours);
  drop(kesto::statusLineServiceHolder);
  drop(kesto::toolTable);
  kesto::projectTestA->unregisterClients();
  drop(kesto::projectTestA);
  kesto::projectOrder = nullptr;
  kesto::makeOrder = nullptr;
}

std::vector<std::string> BarSession::texts(HMENU menu) {
  std::vector<std::string> texts;
  const int count = GetMenuItemCount(menu);
  for (int i = 0; i < count; ++i) {
    char text[300] = "";
    GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
    texts.emplace_back(text);
  }
  return texts;
}
