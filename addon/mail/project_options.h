// The recipients of a project's mails, as the project keeps them. Plain code.
#pragma once

#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"
#include "addon/ide/project_options.h"

namespace kesto {

// Replaces the recipients by the stored ones that are not empty.
void readRecipients(ProjectOptionStore& store, Ensemble<String>& recipients);
void writeRecipients(ProjectOptionStore& store, const Ensemble<String>& recipients);

}  // namespace kesto
