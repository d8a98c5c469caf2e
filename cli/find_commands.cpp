// The searches by name: "find" and "xref".
#include "addon/foundation/path.h"
#include "addon/navigation/name_search.h"
#include "cli/commands.h"
#include "cli/place.h"
#include "cli/session.h"
#include "cli/text_form.h"
#include "cli/told_files.h"
#include "workbench/project/project_tree.h"

namespace kesto::cli {
namespace {

// The sources as they lie on the disk. A name beyond ASCII is sought in UTF-8, to which
// other texts are turned meanwhile.
class DiskTexts : public SourceTexts {
 public:
  DiskTexts(Session& session, bool in_utf8) : session_(session), in_utf8_(in_utf8) {}

  std::string_view textOf(const char* path) override {
    System& system = session_.system();
    std::string_view bytes;
    if (!system.readBytes(path, bytes)) {
      session_.tellFailure(path);
    }
    if (in_utf8_) {
      bytes = utf8_ = utf8Of(bytes);
    }
    return bytes;
  }

 private:
  Session& session_;
  bool in_utf8_;
  std::string utf8_;
};

class HitWriter : public HitListener {
 public:
  HitWriter(Session& session, bool first_only, bool in_utf8)
      : session_(session),
        first_only_(first_only),
        to_ansi_(in_utf8 && !session.system().isUtf8()) {}

  bool hit(const char* file, int line, std::string_view text) override {
    found_ = true;
    Output& output = session_.output();
    const std::string shown = session_.shown(file);
    if (output.json()) {
      output.add(Row().text("file", shown).number("line", line).text("text", text));
    } else {
      output.located(shown, line, to_ansi_ ? ansiOf(text) : std::string(text));
    }
    return !first_only_ && output.open();
  }
  bool found() const { return found_; }

 private:
  Session& session_;
  bool first_only_;
  bool to_ansi_;
  bool found_ = false;
};

// The folders of a path as they were given, each of which has to be there, as the core has
// them.
bool givenFolders(Session& session, const Request& request, const char* option, std::string& list) {
  std::string given = request.list(option);
  std::string_view rest = given;
  std::string_view one;
  while (nextListEntry(rest, one)) {
    const std::string folder = session.folder(one);
    if (folder.empty()) {
      return false;
    }
    session.showBelow(folder, one);
    list += list.empty() ? folder : ';' + folder;
  }
  return true;
}

int search(Session& session, const Request& request, Search search, const std::string& name) {
  std::string include_path;
  std::string source_path;
  Place place(session);
  if (!givenFolders(session, request, "include-path", include_path) ||
      !givenFolders(session, request, "source-path", source_path) ||
      !place.open(request.value("project", "."))) {
    return kError;
  }
  // These two look beyond the project's folder.
  if (search == Search::kFunction || search == Search::kClass) {
    const std::string file =
        request.has("of") ? session.system().corePath(request.value("of")) : std::string();
    if (!request.has("include-path")) {
      include_path = place.path(workbench::kIncludePathKind, file);
    }
    if (!request.has("source-path")) {
      source_path = place.path(workbench::kSourcePathKind, file);
    }
  }
  const std::string sources = request.list("sources", kSourceMasks);
  const std::string headers = request.list("headers", kHeaderMasks);
  const std::vector<SearchStep> plan =
      planSearch(search, {place.folder(), true, source_path, include_path, sources, headers});
  const bool in_utf8 = !isAscii(name);
  const std::string sought = utf8Of(name);
  const NameMatcher matcher(search, sought);
  DiskTexts texts(session, in_utf8);
  ToldFolders folders(session);
  HitWriter writer(session, search == Search::kFunction || search == Search::kClass, in_utf8);
  Progress progress(session);
  findAll({folders, texts}, plan, !request.has("no-recurse"), matcher, writer, &progress);
  return session.result(writer.found());
}

}  // namespace

int runFind(Session& session, const Request& request) {
  constexpr const char* kKinds[] = {"function", "method", "class"};
  for (int i = 0; i < static_cast<int>(std::size(kKinds)); ++i) {
    if (request.operands[0] == kKinds[i]) {
      return search(session, request, static_cast<Search>(i), request.operands[1]);
    }
  }
  session.complaints().tell(
      {}, "what is found is a function, a method or a class, no \"" + request.operands[0] + '"');
  return kError;
}

int runCrossReference(Session& session, const Request& request) {
  return search(session, request, Search::kCross, request.operands[0]);
}

}  // namespace kesto::cli
