// What the HTML documentation keeps in a project.
#pragma once

#include "addon/ide/project_options.h"

namespace kesto {

struct HtmlProjectOptions {
  IntegerOption enabled{"Kesto_HTMLEN", 1};
  IntegerOption automatic{"Kesto_HTMLAU", 0};
  TextOption filters{"Kesto_HTMLFI", kTextMarker, "*.cpp;*.h"};
};

extern HtmlProjectOptions htmlProjectOptions;

}  // namespace kesto
