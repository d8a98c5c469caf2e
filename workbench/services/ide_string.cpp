#include "workbench/services/ide_string.h"

#include <utility>

namespace workbench {

IdeString::IdeString(LiveObjects& live, std::string text)
    : Transient(live, "string"), text_(std::move(text)) {}

void STDMETHODCALLTYPE IdeString::SetText(const char* text) {
  // The text may be a part of the one it replaces.
  text_ = std::string(text != nullptr ? text : "");
}

const char* STDMETHODCALLTYPE IdeString::GetText() {
  return text_.c_str();
}

IIdeString* handOut(LiveObjects& live, const std::string& text) {
  return new IdeString(live, text);
}

std::string textOf(IIdeString* string) {
  return string != nullptr ? std::string(string->GetText()) : std::string();
}

}  // namespace workbench
