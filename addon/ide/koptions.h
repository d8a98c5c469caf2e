// The options service, held for the session: directory options of project
// nodes and the add-on's chapter of the options dialog. One object, created and
// destroyed by the lifecycle; user-interface thread only.
#pragma once

#include "addon/foundation/string.h"
#include "addon/ide/service_holder.h"

namespace kesto {

class OptionsServiceHolder : public ServiceHolder<IOptionsService> {
 public:
  // An IDE without the service is an internal fault, reported and survived.
  OptionsServiceHolder();
};

extern OptionsServiceHolder* optionsServiceHolder;

// The text of a node's directory option into the output. Returns 1, or 0 and
// leaves the output alone when the node has no such option.
int getOptionText(ProjectNode node, int kind, String& output);

}  // namespace kesto
