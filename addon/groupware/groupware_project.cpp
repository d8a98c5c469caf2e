#include "addon/groupware/groupware_project.h"

#include <string>

#include "addon/foundation/full_path.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/path.h"
#include "addon/groupware/group_dialog.h"
#include "addon/groupware/groupware_settings.h"
#include "addon/groupware/project_options.h"
#include "addon/ide/current_project.h"

namespace kesto {

GroupwareProject* groupwareProject = nullptr;

namespace {

constexpr char kNoServer[] =
    "You must specify a server directory (options dialog)\nbefore calling this function !";

// A drive alone would be its current directory.
std::string wholeRoot(std::string_view directory) {
  return rootOf(fullPath(std::string(directory) + '\\'));
}

}  // namespace

void GroupwareProject::projectChanged() {
  if (dialog_ != nullptr) {
    EndDialog(dialog_, 0);
  }
}

void GroupwareProject::openSend(HWND owner) {
  SendExchange exchange;
  open(
      exchange, [] { return groupwareSettings->mail_on_send.value != 0; }, owner);
}

void GroupwareProject::openGet(HWND owner) {
  GetExchange exchange;
  open(
      exchange, [] { return groupwareSettings->mail_on_get.value != 0; }, owner);
}

void GroupwareProject::open(GroupExchange& exchange, bool (*mails)(), HWND owner) {
  if (dialog_ != nullptr) {
    return;
  }
  const std::string& server = groupwareProjectOptions.server_directory.value;
  const bool loaded = service_ != nullptr && service_->IsProjectLoaded() != 0;
  if (!loaded || !isProjectOpen() || server.empty()) {
    showMessage(owner, kNoServer, "Kesto AddOn error", kMessageIconExclamation);
    return;
  }
  const std::string project = wholeRoot(projectDirectory());
  GroupDialog(exchange, {project, wholeRoot(serverDirectory(project, server))}, mails).run(owner);
}

}  // namespace kesto
