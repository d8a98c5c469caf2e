// The IDE's message window as the cross reference writes into it: a group of its own,
// a header a run, the references below it.
#pragma once

#include "addon/foundation/tableau.h"
#include "addon/ide/message_group.h"
#include "addon/navigation/quick_resu.h"

namespace kesto {

class CrossReferenceMessages {
 public:
  // Writes a run's references, and below them when they are not the whole of them. An IDE
  // without the message service gets none.
  void write(const char* name, const Tableau<QuickResu>& references, bool whole = true);

 private:
  MessageGroupWriter group_{"Cross reference", "&Cross reference"};
};

}  // namespace kesto
