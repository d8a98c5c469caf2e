// The pages of the site: what each is called and what it says. Refers to a sorted project.
#pragma once

#include <string>
#include <string_view>

#include "addon/html/ht_projet.h"
#include "addon/html/page_text.h"

namespace kesto {

// What the name of the page of the frames starts with; the project's name follows.
inline constexpr std::string_view kFramesetPage = "Documentation ";
inline constexpr std::string_view kPageExtension = ".html";

// A page is used for one after the other: each begins by emptying it.
struct Page {
  std::string name;  // of its file, without ".html"
  std::string text;
};

class SitePages {
 public:
  explicit SitePages(const htProjet& projet) : projet_(projet), links_(projet) {}

  void frameset(Page& page) const;
  void title(Page& page) const;
  void fileList(Page& page) const;
  void projectContents(Page& page) const;
  void projectPresentation(Page& page) const;
  void fileContents(Page& page, const htFile& file) const;
  void filePresentation(Page& page, const htFile& file) const;
  void classPage(Page& page, const htClass& shown) const;
  // Of a function or macro. False after a failed internal check, which was shown: the
  // symbol is neither.
  bool symbolPage(Page& page, const htSymbol& shown) const;

 private:
  void listBriefly(std::string& text, const htSymbol& entry) const;
  void methods(std::string& text, const htClass& shown) const;

  const htProjet& projet_;
  WordLinks links_;
};

}  // namespace kesto
