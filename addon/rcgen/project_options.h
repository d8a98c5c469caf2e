// What the resource class generator keeps in a project.
#pragma once

#include "addon/ide/project_options.h"

namespace kesto {

struct RcgenProjectOptions : ProjectOptionGroup {
  IntegerOption dialog_classes{*this, "Kesto_EWindows", 0};  // generate them at Make
  IntegerOption version_stamping{*this, "Kesto_GenRC", 0};   // stamp versions at Make
};

extern RcgenProjectOptions rcgenProjectOptions;

}  // namespace kesto
