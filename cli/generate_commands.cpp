// What is made of a whole project: "html", "classes" and "stamp".
#include <charconv>

#include "addon/foundation/path.h"
#include "addon/html/project_options.h"
#include "addon/html/site_generation.h"
#include "addon/rcgen/generator_run.h"
#include "cli/commands.h"
#include "cli/place.h"
#include "cli/told_files.h"

namespace kesto::cli {
namespace {

std::string givenPlace(const Request& request) {
  return request.operands.empty() ? "." : request.operands[0];
}

void writePut(Session& session, const ToldFiles& files, bool verbose) {
  Output& output = session.output();
  for (const std::string& path : files.put()) {
    if (output.json()) {
      output.add(Row().text("file", session.shown(path)));
    } else if (verbose) {
      output.line(session.shown(path));
    }
  }
}

class SiteWatch : public SiteProgress {
 public:
  explicit SiteWatch(Session& session) : progress_(session) {}
  void reading(int files_read) override {
    files = files_read;
    progress_.tell(files, 0, "files read");
  }
  void writing(int pages_written, int all_pages) override {
    pages = pages_written;
    all = all_pages;
    progress_.tell(pages, all, "pages");
  }
  int files = 0;
  int pages = 0;
  int all = 0;

 private:
  Progress progress_;
};

class Notices : public GeneratorNotices {
 public:
  explicit Notices(Session& session) : session_(session) {}
  void notice(const std::string& text) override { session_.complaints().note({}, text); }
  std::string shown(std::string_view path) override { return session_.shown(path); }

 private:
  Session& session_;
};

// True when the run was not cut short.
bool generate(Session& session, const Place& place, GeneratorSwitches switches, ToldFiles& files,
              std::int32_t& build_number) {
  ToldFolders folders(session);
  Notices notices(session);
  Progress progress(session);
  runGenerator({folders, files, notices}, place.folder(), switches, build_number, &progress);
  return session.output().open();
}

}  // namespace

int runHtml(Session& session, const Request& request) {
  Place place(session);
  if (!place.open(givenPlace(request))) {
    return kError;
  }
  HtmlProjectOptions options;
  options.filters.read(place);
  const std::string name = request.value("name", projectNamePart(place.file()));
  ToldFolders folders(session);
  ToldFiles files(session);
  SiteWatch watch(session);
  const bool whole =
      generateSite({place.folder(), request.list("filters", options.filters.value), name}, folders,
                   files, watch);
  const std::string start = session.shown(siteStartPage(place.folder(), name));
  if (session.output().json()) {
    session.output().add(Row()
                             .text("site", start)
                             .number("files", watch.files)
                             .number("pages", watch.pages)
                             .number("refused", watch.all - watch.pages));
  } else if (request.has("verbose")) {
    writePut(session, files, true);
  }
  if (watch.pages < watch.all) {
    session.complaints().note(start, std::to_string(watch.all - watch.pages) + " of " +
                                         std::to_string(watch.all) + " pages were not written");
  }
  return whole ? session.result(watch.files > 0) : kError;
}

int runClasses(Session& session, const Request& request) {
  Place place(session);
  if (!place.open(givenPlace(request))) {
    return kError;
  }
  ToldFiles files(session);
  std::int32_t unused = 0;
  generate(session, place, {true, false}, files, unused);
  writePut(session, files, request.has("verbose"));
  return session.result(true);
}

int runStamp(Session& session, const Request& request) {
  std::int32_t build_number = 0;
  const std::string given = request.value("after", "0");
  const auto [end, fault] =
      std::from_chars(given.data(), given.data() + given.size(), build_number);
  if (fault != std::errc() || end != given.data() + given.size()) {
    session.complaints().tell({}, "--after needs a number, no \"" + given + '"');
    return kError;
  }
  Place place(session);
  if (!place.open(givenPlace(request))) {
    return kError;
  }
  ToldFiles files(session);
  generate(session, place, {false, true}, files, build_number);
  writePut(session, files, request.has("verbose"));
  const bool stamped = !files.put().empty();
  if (stamped && session.output().json()) {
    session.output().add(Row().number("build", build_number));
  }
  return session.result(stamped);
}

}  // namespace kesto::cli
