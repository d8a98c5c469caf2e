#include "addon/ide/status_line.h"

#include "addon/ide/service_holder.h"

namespace kesto {
namespace {

constexpr DWORD kBeepHertz = 220;
constexpr DWORD kBeepMilliseconds = 500;

}  // namespace

void showStatus(const char* text) {
  IStatusLineService* service = statusLineService();
  if (service == nullptr) {
    return;
  }
  if (const ComPtr<IIdeString> string = makeIdeString(text)) {
    service->SetText(string.get());
  }
}

void soundBeep() {
  Beep(kBeepHertz, kBeepMilliseconds);
}

}  // namespace kesto
