// What the HTML documentation keeps in a project.
#pragma once

#include "addon/ide/project_options.h"

namespace kesto {

struct HtmlProjectOptions : ProjectOptionGroup {
  IntegerOption enabled{*this, "Kesto_HTMLEN", 1};
  IntegerOption automatic{*this, "Kesto_HTMLAU", 0};
  TextOption filters{*this, "Kesto_HTMLFI", kTextMarker, "*.cpp;*.h"};
};

extern HtmlProjectOptions htmlProjectOptions;

}  // namespace kesto
