#include "addon/html/site_writer.h"

#include <optional>
#include <utility>

#include "addon/foundation/safe_write.h"

namespace kesto {

namespace {

constexpr int kPagesOfProject = 5;
constexpr int kPagesOfFile = 2;

// Pages grow in a directory of their own: where there are thousands of them, one more
// name takes the system long to look for.
constexpr const char* kGrowing = "\\.kesto-new";
constexpr const char* kGrowingPage = "\\page";

// Names come out of comments: one that leads to another directory, or into a stream of
// a file, is no page.
bool isFileName(std::string_view name) {
  return name.find_first_of("\\/:") == std::string_view::npos;
}

}  // namespace

SiteWriter::SiteWriter(const htProjet& projet, std::string directory, FileSystem& files,
                       SiteProgress& progress)
    : projet_(projet),
      pages_(projet),
      directory_(std::move(directory)),
      growing_(directory_ + kGrowing),
      growing_page_(growing_ + kGrowingPage),
      files_(files),
      progress_(progress),
      all_(kPagesOfProject + kPagesOfFile * projet.files.count() + projet.classes.count() +
           projet.functions.count() + projet.macros.count()) {}

bool SiteWriter::write() {
  fresh_ = files_.makeDirectory(directory_.c_str());
  if (!files_.makeDirectory(growing_.c_str()) && !isDirectory(growing_)) {
    // Something else is in its place, or its path would be too long.
    growing_page_ = directory_ + "\\.page";
  }
  const bool whole = writePages();
  files_.removeDirectory(growing_.c_str());
  return whole;
}

bool SiteWriter::isDirectory(const std::string& path) const {
  const std::optional<FileStatus> status = files_.status(path.c_str());
  return status && status->is_directory;
}

bool SiteWriter::writePages() {
  for (const auto page : {&SitePages::frameset, &SitePages::title, &SitePages::projectContents,
                          &SitePages::fileList, &SitePages::projectPresentation}) {
    (pages_.*page)(page_);
    writePage();
  }
  for (int i = 0; i < projet_.files.count(); ++i) {
    pages_.fileContents(page_, *projet_.files[i]);
    writePage();
    pages_.filePresentation(page_, *projet_.files[i]);
    writePage();
  }
  for (int i = 0; i < projet_.classes.count(); ++i) {
    pages_.classPage(page_, *projet_.classes[i]);
    writePage();
  }
  return writeSymbols(projet_.functions) && writeSymbols(projet_.macros);
}

bool SiteWriter::writeSymbols(const Ensemble<htSymbol>& symbols) {
  for (int i = 0; i < symbols.count(); ++i) {
    if (!pages_.symbolPage(page_, *symbols[i])) {
      return false;
    }
    writePage();
  }
  return true;
}

void SiteWriter::writePage() {
  if (isFileName(page_.name)) {
    path_ = directory_;
    append(path_, {"\\", page_.name, kPageExtension});
    const bool same = !fresh_ && files_.holds(path_.c_str(), page_.text);
    if (same || putText(files_, growing_page_.c_str(), path_.c_str(), page_.text)) {
      ++written_;
    }
  }
  progress_.writing(written_, all_);
}

}  // namespace kesto
