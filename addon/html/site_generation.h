// The documentation of a project, from its sources to the written site. The file system
// and the onlooker are seen through small interfaces; everything runs on the caller's
// thread.
#pragma once

#include <string>
#include <string_view>

#include "addon/foundation/directory_walk.h"
#include "addon/foundation/file_system.h"

namespace kesto {

struct SiteRequest {
  std::string directory;     // the root of the sources; the site is written below it
  std::string filters;       // patterns of the files to read, separated by ";"
  std::string project_name;  // without directory and extension
};

class SiteProgress {
 public:
  virtual ~SiteProgress() = default;
  virtual void reading(int files_read) = 0;
  // After each page, also one that was left out.
  virtual void writing(int pages_written, int pages) = 0;
};

// The directory of the site of a project in this directory.
std::string siteDirectory(std::string_view directory);
// The full path of the page that shows the site.
std::string siteStartPage(std::string_view directory, std::string_view project_name);

// Reads the sources and writes every page, each of which is there as it was or whole at
// any time. Files that cannot be read and pages that cannot be written are left out; false only
// after a failed internal check, which was shown and at which the generation stopped.
bool generateSite(const SiteRequest& request, DirectoryLister& lister, FileSystem& files,
                  SiteProgress& progress);

}  // namespace kesto
