// The texts that travel between the IDE and add-ons. User-interface thread only.
#pragma once

#include <string>

#include "workbench/services/counted.h"

namespace workbench {

class IdeString final : public Transient<IdeString, IIdeString> {
 public:
  IdeString(LiveObjects& live, std::string text);
  void STDMETHODCALLTYPE SetText(const char* text) override;
  const char* STDMETHODCALLTYPE GetText() override;

 private:
  std::string text_;
};

// A new reference for the receiver.
IIdeString* handOut(LiveObjects& live, const std::string& text);
// Empty for null.
std::string textOf(IIdeString* string);

}  // namespace workbench
