#include "addon/mail/project_options.h"

#include <algorithm>
#include <string>

namespace kesto {

namespace {

constexpr char kCountName[] = "Kesto_NB_MAIL";
constexpr char kRecipientStem[] = "Kesto_MAIL_PJ_";

}  // namespace

void readRecipients(ProjectOptionStore& store, Ensemble<String>& recipients) {
  recipients.clear();
  int count = 0;
  readInteger(store, kCountName, count);
  count = std::min(count, kOptionListLimit);
  for (int i = 0; i < count; ++i) {
    std::string recipient;
    readText(store, entryOptionName(kRecipientStem, i).c_str(), recipient);
    if (!recipient.empty()) {
      recipients.append(new String(recipient));
    }
  }
}

void writeRecipients(ProjectOptionStore& store, const Ensemble<String>& recipients) {
  writeInteger(store, kCountName, recipients.count());
  for (int i = 0; i < recipients.count(); ++i) {
    writeText(store, entryOptionName(kRecipientStem, i).c_str(), kEntryMarker,
              recipients[i]->text());
  }
}

}  // namespace kesto
