#include "addon/navigation/cross_reference.h"

#include <string>

#include "addon/ide/find_window.h"
#include "addon/navigation/cross_header.h"

namespace kesto {
namespace {

constexpr short kColumn = 1;
constexpr int kMessageKind = 5;
constexpr int kTextSize = 512;

// The system's own formats, whatever the user set up.
std::string currentDate() {
  char text[kTextSize] = "";
  GetDateFormatA(LOCALE_SYSTEM_DEFAULT, LOCALE_NOUSEROVERRIDE, nullptr, nullptr, text, sizeof text);
  return text;
}

std::string currentTime() {
  char text[kTextSize] = "";
  GetTimeFormatA(LOCALE_SYSTEM_DEFAULT, LOCALE_NOUSEROVERRIDE, nullptr, nullptr, text, sizeof text);
  return text;
}

std::string titleOf(HWND window) {
  char title[kTextSize] = "";
  if (window != nullptr) {
    GetWindowTextA(window, title, sizeof title);
  }
  return title;
}

HWND maximisedDocument() {
  const HWND client = findMdiClient();
  BOOL maximised = FALSE;
  const LRESULT active = client != nullptr ? SendMessageA(client, WM_MDIGETACTIVE, 0,
                                                          reinterpret_cast<LPARAM>(&maximised))
                                           : 0;
  return maximised != FALSE ? reinterpret_cast<HWND>(active) : nullptr;
}

}  // namespace

bool CrossReferenceMessages::open() {
  if (!service_) {
    service_ = getService<IMessageService>(ideapi::kMessageService);
  }
  if (service_ && group_ == 0) {
    const ComPtr<IIdeString> name = makeIdeString("Cross reference");
    const ComPtr<IIdeString> menu_text = makeIdeString("&Cross reference");
    if (name && menu_text) {
      group_ = service_->CreateGroup(name.get(), menu_text.get());
    }
  }
  return group_ != 0;
}

void CrossReferenceMessages::write(const char* name, const Tableau<QuickResu>& references,
                                   bool whole) {
  const std::string text =
      crossReferenceHeader(titleOf(findFrame()), titleOf(maximisedDocument()), name, currentDate(),
                           currentTime(), references.count());
  if (!open()) {
    return;
  }
  if (const ComPtr<IIdeString> header = makeIdeString(text.c_str())) {
    header_ = service_->AddMessage(group_, 0, header.get());
  }
  for (int i = 0; i < references.count(); ++i) {
    const QuickResu& reference = *references.at(i);
    const ComPtr<IIdeString> line = makeIdeString(reference.text());
    const ComPtr<IIdeString> file = makeIdeString(reference.file());
    if (line && file) {
      service_->AddLocatedMessage(group_, header_, line.get(), file.get(), reference.line(),
                                  kColumn, kMessageKind);
    }
  }
  if (!whole) {
    if (const ComPtr<IIdeString> end = makeIdeString("The search was stopped: there may be more")) {
      service_->AddMessage(group_, header_, end.get());
    }
  }
}

}  // namespace kesto
