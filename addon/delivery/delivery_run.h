// The delivery itself: what is copied, and what is said of it where. Plain code;
// user-interface thread, as failures show boxes.
#pragma once

#include <string>
#include <string_view>

#include "addon/delivery/one_del_rep.h"
#include "addon/foundation/tableau.h"
#include "addon/ide/copy_run.h"

namespace kesto {

// The message group "Delivery".
class DeliveryMessages {
 public:
  virtual ~DeliveryMessages() = default;
  // Begins a delivery of so many files with its header, which it returns.
  virtual std::string begin(int files) = 0;
  virtual void add(const std::string& text) = 0;
};

// The project is what the frame's title tells of it; date and time are shown as they come.
std::string deliveryHeader(std::string_view project, std::string_view date, std::string_view time,
                           int files);
// The record as the confirmation lists it.
std::string deliveryRow(const Livrage& delivery);

struct DeliveryOutcome {
  bool failed = false;
  bool abandoned = false;  // the session ended: nothing that was there before may be used
  std::string subject;     // of a mail
  std::string report;      // a line for each delivered file
};

// Fills in the sizes and copies every record, in their order.
DeliveryOutcome deliver(Tableau<Livrage>& deliveries, CopyFiles& files, CopyProgress& progress,
                        DeliveryMessages& messages, void* owner);

}  // namespace kesto
