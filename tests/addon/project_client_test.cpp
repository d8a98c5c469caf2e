#include "addon/ide/project_client.h"

#include <cstring>

#include "addon/delivery/project_options.h"
#include "addon/foundation/settings_store.h"
#include "addon/groupware/project_options.h"
#include "addon/html/project_options.h"
#include "addon/ide/current_project.h"
#include "addon/mail/mail.h"
#include "addon/rcgen/project_options.h"
#include "addon/tasks/task_list.h"
#include "addon/topbar/recent_files.h"
#include "addon/topbar/top_bar.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"
#include "tests/foundation/played_disk.h"

namespace {

using Names = std::vector<std::string>;

std::string number(int value) {
  std::string bytes(4, '\0');
  memcpy(bytes.data(), &value, 4);
  return bytes;
}

std::string text(const char* with_marker) {
  return std::string(with_marker, strlen(with_marker) + 1);
}

std::string currentDirectory() {
  char directory[MAX_PATH] = "";
  GetCurrentDirectoryA(sizeof directory, directory);
  return directory;
}

}  // namespace

TEST_CASE("a project without options opens with the defaults") {
  BarSession session;
  kesto::settings().writeInteger("TopBar", "Hierarchical", 1);
  kesto::settings().writeInteger("TopBar", "HideWithView", 1);
  session.create();
  CHECK(!kesto::isProjectOpen());
  CHECK(session.ide.make.clients.empty());
  session.openProject("C:\\windows\\p.ide");
  CHECK(kesto::isProjectOpen());
  CHECK(kesto::projectFile() == "C:\\windows\\p.ide");
  CHECK(kesto::projectDirectory() == "C:\\windows");
  CHECK(lstrcmpiA(currentDirectory().c_str(), "C:\\windows") == 0);
  CHECK(session.ide.make.clients.size() == 1);
  CHECK(session.ide.project.asked == Names{"Kesto_HIERARCH", "Kesto_HIDEWITHVIEW", "Kesto_EWindows",
                                           "Kesto_GenRC", "Kesto_HTMLEN", "Kesto_HTMLAU",
                                           "Kesto_HTMLFI", "Kesto_NB_ODR", "Kesto_WITHDELIVERY",
                                           "KestoGroupwareServer", "Kesto_NB_MAIL"});
  CHECK(kesto::topBar->construction() == kesto::BarConstruction::kHierarchical);
  CHECK(!kesto::topBar->hidesWithView());
  CHECK(kesto::rcgenProjectOptions.dialog_classes.value == 0);
  CHECK(kesto::htmlProjectOptions.enabled.value == 1);
  CHECK(kesto::htmlProjectOptions.automatic.value == 0);
  CHECK(kesto::htmlProjectOptions.filters.value == "*.cpp;*.h");
  CHECK(kesto::deliveryProjectOptions.tool_present.value == 1);
  CHECK(kesto::groupwareProjectOptions.server_directory.value.empty());

  // The place of the project file is a drive's root.
  session.ide.project.open("C:\\q.ide");
  CHECK(lstrcmpiA(currentDirectory().c_str(), "C:\\") == 0);
  session.ide.project.close();
  CHECK(!kesto::isProjectOpen());
  CHECK(session.ide.make.clients.empty());
  session.destroy();
  // What the project says of the menus is no setting.
  CHECK(kesto::settings().readInteger("TopBar", "HideWithView", 0) == 1);
}

TEST_CASE("saving a project gives back what it stores, in order") {
  BarSession session;
  session.create();
  const std::map<std::string, std::string> options = {
      {"Kesto_HIERARCH", number(1)},         {"Kesto_HIDEWITHVIEW", number(1)},
      {"Kesto_EWindows", number(1)},         {"Kesto_GenRC", number(1)},
      {"Kesto_HTMLEN", number(0)},           {"Kesto_HTMLAU", number(1)},
      {"Kesto_HTMLFI", text("~*.cc")},       {"Kesto_WITHDELIVERY", number(0)},
      {"Kesto_NB_ODR", number(2)},           {"Kesto_ODR_TYP_0", text("+.exe")},
      {"Kesto_ODR_REP_0", text("+D:\\out")}, {"Kesto_ODR_TYP_1", text("+.dll")},
      {"Kesto_ODR_REP_1", text("+")},        {"KestoGroupwareServer", text("~Z:\\srv")},
      {"Kesto_NB_MAIL", number(2)},          {"Kesto_MAIL_PJ_0", text("+anna")},
      {"Kesto_MAIL_PJ_1", text("+bert")},    {"Other", "untouched"},
      {"Kesto_ODR_ACT_0", number(0)},        {"Kesto_ODR_ACT_1", number(1)}};
  session.ide.project.options = options;
  session.openProject("C:\\p.ide");
  REQUIRE(session.ide.project_save.clients.size() == 1);
  session.ide.project_save.clients[0]->ProjectSaving();
  CHECK(session.ide.project.options == options);
  CHECK(session.ide.project.committed ==
        Names{"Kesto_HIERARCH", "Kesto_HIDEWITHVIEW", "Kesto_WITHDELIVERY", "Kesto_NB_ODR",
              "Kesto_ODR_TYP_0", "Kesto_ODR_REP_0", "Kesto_ODR_TYP_1", "Kesto_ODR_REP_1",
              "Kesto_NB_MAIL", "Kesto_MAIL_PJ_0", "Kesto_MAIL_PJ_1", "KestoGroupwareServer",
              "Kesto_EWindows", "Kesto_GenRC", "Kesto_HTMLEN", "Kesto_HTMLAU", "Kesto_HTMLFI",
              "Kesto_ODR_ACT_0", "Kesto_ODR_ACT_1"});
  session.ide.project.close();
  CHECK(kesto::mail->recipients().count() == 0);
}

TEST_CASE("a project that is told of but not loaded is none") {
  BarSession session;
  session.create();
  kesto::RecentList& projects = kesto::recentFiles->projects();
  projects.addNew("C:\\p.ide");
  kesto::PlayedDisk disk;
  kesto::TaskList tasks(disk);
  tasks.setPath("C:\\before.ide.tsk");
  kesto::taskList = &tasks;
  session.ide.project.open("C:\\p.ide");
  kesto::taskList = nullptr;
  tasks.save();
  CHECK(disk.files.empty());
  CHECK(!kesto::isProjectOpen());
  CHECK(session.ide.project.asked.empty());
  CHECK(session.ide.make.clients.empty());
  CHECK(session.barTexts() == Names{"Kesto"});
  CHECK(projects.count() == 0);
  session.ide.project.close();
  CHECK(projects.count() == 0);
}
