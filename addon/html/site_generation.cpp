#include "addon/html/site_generation.h"

#include "addon/foundation/path.h"
#include "addon/html/ht_projet.h"
#include "addon/html/site_writer.h"
#include "addon/html/source_reader.h"

namespace kesto {

namespace {

constexpr std::string_view kSiteDirectory = "\\kHTML";
constexpr const char* kCompanionExtension = ".txt";

// Takes up each file of a walk, with the text file beside it, which may hold
// documentation that is kept out of the source.
class ModelBuilder : public FileVisitor {
 public:
  ModelBuilder(htProjet& projet, FileSystem& files, SiteProgress& progress)
      : projet_(projet), files_(files), progress_(progress) {}

  bool visit(const char* path) override {
    if (fileNamePart(path).starts_with('.')) {
      return false;
    }
    htFile& file = projet_.addFile(path);
    String companion(path);
    companion += kCompanionExtension;
    if (!read(companion, file) || !read(path, file)) {
      failed_ = true;
      return true;
    }
    progress_.reading(projet_.files.count());
    return false;
  }

  bool failed() const { return failed_; }

 private:
  bool read(const char* path, htFile& file) {
    return !files_.read(path, text_) || SourceReader(projet_, file).read(text_);
  }

  htProjet& projet_;
  FileSystem& files_;
  SiteProgress& progress_;
  std::string text_;
  bool failed_ = false;
};

bool buildModel(htProjet& projet, DirectoryLister& lister, FileSystem& files,
                SiteProgress& progress) {
  Folders folders(lister);
  ModelBuilder builder(projet, files, progress);
  std::string_view rest = projet.filters.view();
  while (!rest.empty() && !builder.failed()) {
    std::string_view mask;
    if (nextListEntry(rest, mask)) {
      walkDirectory(folders, projet.directory.view(), mask, true, builder);
    }
  }
  projet.sort();
  return !builder.failed();
}

}  // namespace

std::string siteDirectory(std::string_view directory) {
  std::string path(directory);
  path += kSiteDirectory;
  return path;
}

std::string siteStartPage(std::string_view directory, std::string_view project_name) {
  std::string path = siteDirectory(directory);
  append(path, {"\\", kFramesetPage, project_name, kPageExtension});
  return path;
}

bool generateSite(const SiteRequest& request, DirectoryLister& lister, FileSystem& files,
                  SiteProgress& progress) {
  htProjet projet(request.directory, request.filters, request.project_name);
  return buildModel(projet, lister, files, progress) &&
         SiteWriter(projet, siteDirectory(request.directory), files, progress).write();
}

}  // namespace kesto
