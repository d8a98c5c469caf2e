// What the features do when a project opens, closes, changes and is saved.
#pragma once

#include "addon/ide/make_client.h"
#include "addon/ide/project_client.h"

namespace kesto {

extern const ProjectOrder kProjectOrder;
extern const MakeOrder kMakeOrder;

// A step of an opening, which waits for its object in a start that finds a project open.
void readMailRecipients(const ProjectWork& work);

}  // namespace kesto
