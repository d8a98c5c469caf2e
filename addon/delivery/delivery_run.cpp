#include "addon/delivery/delivery_run.h"

#include <algorithm>
#include <limits>

#include "addon/delivery/delivery_list.h"
#include "addon/foundation/path.h"

namespace kesto {
namespace {

constexpr std::uint64_t kLargestSize = std::numeric_limits<std::uint32_t>::max();

// The sizes of all records together.
std::uint64_t measure(Tableau<Livrage>& deliveries, CopyFiles& files) {
  std::uint64_t total = 0;
  for (int i = 0; i < deliveries.count(); ++i) {
    Livrage& delivery = *deliveries[i];
    delivery.size =
        static_cast<std::uint32_t>(std::min(files.size(delivery.source).value_or(0), kLargestSize));
    total += delivery.size;
  }
  return total;
}

}  // namespace

std::string deliveryHeader(std::string_view project, std::string_view date, std::string_view time,
                           int files) {
  std::string header(project);
  header += " : ";
  header += std::to_string(files);
  header += files > 1 ? " files (" : " file (";
  header += date;
  header += " , ";
  header += time;
  header += ')';
  return header;
}

std::string deliveryRow(const Livrage& delivery) {
  std::string row(fileNamePart(delivery.source.view()));
  row += " -> ";
  row += delivery.group->directory.view();
  return row;
}

DeliveryOutcome deliver(Tableau<Livrage>& deliveries, CopyFiles& files, CopyProgress& progress,
                        DeliveryMessages& messages, void* owner) {
  DeliveryOutcome outcome;
  CopyRun run(files, progress, measure(deliveries, files), owner);
  outcome.subject = "Delivery : " + messages.begin(deliveries.count());
  for (int i = 0; i < deliveries.count() && !run.abandoned(); ++i) {
    const Livrage& delivery = *deliveries[i];
    const std::string source(delivery.source.view());
    if (run.copy(source.c_str(), deliveredPath(*delivery.group, delivery.source).c_str(),
                 delivery.size)) {
      messages.add(source + " delivered");
      outcome.report += source + " delivered to ";
      outcome.report += delivery.group->directory.view();
      outcome.report += '\n';
    } else {
      outcome.failed = true;
    }
  }
  outcome.abandoned = run.abandoned();
  return outcome;
}

}  // namespace kesto
