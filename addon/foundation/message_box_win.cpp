#include "addon/foundation/message_box.h"

#include <windows.h>

namespace kesto {

static_assert(kMessageOk == MB_OK && kMessageOkCancel == MB_OKCANCEL &&
              kMessageYesNoCancel == MB_YESNOCANCEL && kMessageYesNo == MB_YESNO);
static_assert(kMessageIconHand == MB_ICONHAND && kMessageIconQuestion == MB_ICONQUESTION &&
              kMessageIconExclamation == MB_ICONEXCLAMATION &&
              kMessageIconInformation == MB_ICONASTERISK);
static_assert(kAnswerOk == IDOK && kAnswerCancel == IDCANCEL && kAnswerYes == IDYES &&
              kAnswerNo == IDNO);

int showMessage(void* owner, const char* text, const char* caption, unsigned flags) {
  return MessageBoxA(static_cast<HWND>(owner), text, caption, flags);
}

}  // namespace kesto
