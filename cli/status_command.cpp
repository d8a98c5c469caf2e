// What groupware would say of each file: "status".
#include <algorithm>

#include "addon/groupware/group_lists.h"
#include "addon/groupware/project_options.h"
#include "cli/commands.h"
#include "cli/place.h"
#include "cli/session.h"

namespace kesto::cli {
namespace {

// A word that is blank in a list box is none.
std::string_view wordOf(std::string_view word) {
  return word == " " ? std::string_view() : word;
}

class StatusWriter {
 public:
  StatusWriter(Session& session, const GroupRoots& roots) : session_(session), roots_(roots) {}

  void write(const EltGWsend& element) {
    const std::string name = nameOf(element, roots_.project);
    const std::string_view request = wordOf(requestWord(element.request));
    Output& output = session_.output();
    if (output.json()) {
      output.add(Row()
                     .text("list", "send")
                     .text("file", name)
                     .text("age", ageWord(element.age))
                     .text("request", request));
    } else {
      line({"send", name, ageWord(element.age), request});
    }
  }

  void write(const EltGWget& element) {
    const std::string name = nameOf(element, roots_.server);
    const std::string_view advice = wordOf(adviceWord(element.advice));
    Output& output = session_.output();
    if (output.json()) {
      output.add(Row()
                     .text("list", "get")
                     .text("file", name)
                     .flag("locked", element.locked)
                     .text("age", ageWord(element.age))
                     .text("advice", advice));
    } else {
      line({"get", name, ageWord(element.age), element.locked ? "locked" : "", advice});
    }
  }

 private:
  // Below its root, as the system has it.
  std::string nameOf(const EltGW& element, const std::string& root) {
    System& system = session_.system();
    const std::string path = system.diskPath(element.path.view());
    const std::string disk_root = system.diskPath(root);
    return path.substr(std::min(path.size(), disk_root.size() + (disk_root == "/" ? 0 : 1)));
  }
  void line(std::initializer_list<std::string_view> fields) {
    std::string row;
    for (const std::string_view field : fields) {
      row += row.empty() ? "" : "\t";
      row += field;
    }
    session_.output().line(row);
  }

  Session& session_;
  const GroupRoots& roots_;
};

// Folders that cannot be listed are told.
class ToldGroup : public GroupListing {
 public:
  explicit ToldGroup(Session& session) : session_(session) {}

  void list(const char* directory, const char* mask, FileListener& listener) override {
    Counting counting(listener);
    session_.system().group().list(directory, mask, counting);
    if (!counting.any && mask == std::string_view("*")) {
      session_.tellUnlisted(directory);
    }
  }
  std::optional<FileFacts> facts(const char* path) override {
    return session_.system().group().facts(path);
  }

 private:
  class Counting : public FileListener {
   public:
    explicit Counting(FileListener& listener) : listener_(listener) {}
    void add(DirectoryEntries::Kind kind, std::string_view name, std::string_view short_name,
             const FileFacts& facts) override {
      any = true;
      listener_.add(kind, name, short_name, facts);
    }
    bool any = false;

   private:
    FileListener& listener_;
  };

  Session& session_;
};

// The server's folder, by the command line or the project; empty, and told, when there is none.
std::string serverFolder(Session& session, const Request& request, Place& place) {
  if (request.has("server")) {
    std::string server = session.folder(request.value("server"));
    if (!server.empty()) {
      session.showBelow(server, request.value("server"));
    }
    return server;
  }
  GroupwareProjectOptions options;
  options.server_directory.read(place);
  if (options.server_directory.value.empty()) {
    session.complaints().tell(session.shown(place.file()),
                              "names no server folder; --server FOLDER does");
    return {};
  }
  const std::string named = serverDirectory(place.folder(), options.server_directory.value);
  const std::string disk = session.system().diskPath(named);
  if (disk.empty()) {
    session.complaints().tell(named, "is on a drive that is not here");
    return {};
  }
  return session.folder(disk);
}

}  // namespace

int runStatus(Session& session, const Request& request) {
  Place place(session);
  if (!place.open(request.operands[0])) {
    return kError;
  }
  const std::string server = serverFolder(session, request, place);
  if (server.empty()) {
    return kError;
  }
  const GroupRoots roots = {rootOf(place.folder()), rootOf(server)};
  const std::string filters = request.list("filters", kExchangedFiles);
  ToldGroup files(session);
  StatusWriter writer(session, roots);
  Progress progress(session);
  int rows = 0;
  const auto write_all = [&](const auto& list) {
    for (int i = 0; i < list.count() && session.output().open(); ++i) {
      writer.write(*list.at(i));
    }
    rows += list.count();
  };
  if (!request.has("get")) {
    SendList list;
    fillSendList(list, files, roots, filters, &progress);
    write_all(list);
  }
  if (!request.has("send")) {
    GetList list;
    fillGetList(list, files, roots, filters, &progress);
    write_all(list);
  }
  return session.result(rows > 0);
}

}  // namespace kesto::cli
