// Delivery in the IDE: its tool in the Tool menu, and what the tool does. One object,
// created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <string>

#include "addon/ide/message_group.h"

namespace kesto {

class Delivery {
 public:
  Delivery() = default;
  // Takes the tool out of the menu.
  ~Delivery();
  Delivery(const Delivery&) = delete;
  Delivery& operator=(const Delivery&) = delete;

  // Puts the tool into the menu unless it is there.
  void registerTool();
  void unregisterTool();
  // One or the other, as the open project says.
  void applyTool();

  // Selects the files, asks, copies, reports. The object may be gone on return; a call
  // that comes meanwhile does nothing.
  void run();

  MessageGroupWriter& messages() { return messages_; }

 private:
  bool registered_ = false;
  bool running_ = false;
  MessageGroupWriter messages_{"Delivery", "&Delivery"};
};

// Null outside a session.
extern Delivery* delivery;

// Makes the groups those of the open project's "DELIVERY" node, whose children it returns.
struct DeliveryNodes;
DeliveryNodes rebuildDeliveryGroups();

// The file with the project's notifications that a mail takes along; empty: none. The roof
// fills it in.
extern std::string (*notificationsToMail)(const std::string& project_file);

}  // namespace kesto
