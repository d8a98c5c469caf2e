#include "addon/delivery/mail_project_options.h"

#include <algorithm>

namespace kesto {

MailProjectOptions mailProjectOptions;

namespace {

constexpr char kCountName[] = "Kesto_NB_MAIL";
constexpr char kRecipientStem[] = "Kesto_MAIL_PJ_";

}  // namespace

void MailProjectOptions::read(ProjectOptionStore& store) {
  recipients.clear();
  int count = 0;
  readInteger(store, kCountName, count);
  count = std::min(count, kOptionListLimit);
  for (int i = 0; i < count; ++i) {
    std::string recipient;
    readText(store, entryOptionName(kRecipientStem, i).c_str(), recipient);
    if (!recipient.empty()) {
      recipients.push_back(std::move(recipient));
    }
  }
}

void MailProjectOptions::write(ProjectOptionStore& store) const {
  const int count = static_cast<int>(recipients.size());
  writeInteger(store, kCountName, count);
  for (int i = 0; i < count; ++i) {
    writeText(store, entryOptionName(kRecipientStem, i).c_str(), kEntryMarker,
              recipients[static_cast<size_t>(i)]);
  }
}

}  // namespace kesto
