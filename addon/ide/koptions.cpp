#include "addon/ide/koptions.h"

#include "addon/foundation/assertion.h"

namespace kesto {

OptionsServiceHolder* optionsServiceHolder = nullptr;

OptionsServiceHolder::OptionsServiceHolder() : ServiceHolder(ideapi::kOptionsService) {
  checkThat(get() != nullptr, "svr!=NULL", "koptions", 13);
}

int getOptionText(ProjectNode node, int kind, String& output) {
  IOptionsService* service =
      optionsServiceHolder != nullptr ? optionsServiceHolder->get() : nullptr;
  if (service == nullptr) {
    return 0;
  }
  const std::unique_ptr<char[]> text = takeIdeString(service->GetNodeOption(node, kind));
  if (text == nullptr) {
    return 0;
  }
  output = text.get();
  return 1;
}

}  // namespace kesto
