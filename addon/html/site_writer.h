// Writes the pages of a sorted project, in their order. Refers to all it is given.
#pragma once

#include <string>

#include "addon/html/ht_projet.h"
#include "addon/html/site_generation.h"
#include "addon/html/site_pages.h"

namespace kesto {

class SiteWriter {
 public:
  SiteWriter(const htProjet& projet, std::string directory, FileSystem& files,
             SiteProgress& progress);

  // False after a failed internal check, which was shown.
  bool write();

 private:
  bool isDirectory(const std::string& path) const;
  bool writePages();
  bool writeSymbols(const Ensemble<htSymbol>& symbols);
  void writePage();

  const htProjet& projet_;
  SitePages pages_;
  std::string directory_;
  std::string growing_;  // a directory, of the page that is being written
  std::string growing_page_;
  FileSystem& files_;
  SiteProgress& progress_;
  Page page_;
  std::string path_;
  bool fresh_ = true;  // a directory without pages
  int written_ = 0;
  int all_;
};

}  // namespace kesto
