// The recipients of a project's mails, as the project keeps them.
#pragma once

#include <string>
#include <vector>

#include "addon/ide/project_options.h"

namespace kesto {

struct MailProjectOptions {
  std::vector<std::string> recipients;

  // Replaces the recipients by the stored ones that are not empty.
  void read(ProjectOptionStore& store);
  void write(ProjectOptionStore& store) const;
};

extern MailProjectOptions mailProjectOptions;

}  // namespace kesto
