// What groupware keeps in a project.
#pragma once

#include "addon/ide/project_options.h"

namespace kesto {

struct GroupwareProjectOptions {
  TextOption server_directory{"KestoGroupwareServer", kTextMarker, ""};
};

extern GroupwareProjectOptions groupwareProjectOptions;

}  // namespace kesto
