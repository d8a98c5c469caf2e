// What the bar keeps in a project: how it builds the project's menus.
#pragma once

#include "addon/ide/project_options.h"

namespace kesto {

// Each without a bar does nothing. Absent options: the construction stays as the
// settings have it, and the menus stay beside the project view.
void readBarConstruction(ProjectOptionStore& store);
void readBarHidesWithView(ProjectOptionStore& store);
void writeBarConstruction(ProjectOptionStore& store);
void writeBarHidesWithView(ProjectOptionStore& store);

}  // namespace kesto
