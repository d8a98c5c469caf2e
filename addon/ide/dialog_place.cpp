#include "addon/ide/dialog_place.h"

namespace kesto {

void centreOnOwner(HWND dialog) {
  const HWND owner = GetParent(dialog);
  const bool shown = owner != nullptr && !IsIconic(owner);
  RECT place = {};
  RECT around = {};
  GetWindowRect(dialog, &place);
  GetWindowRect(shown ? owner : GetDesktopWindow(), &around);
  SetWindowPos(dialog, nullptr, (around.left + around.right - (place.right - place.left)) / 2,
               (around.top + around.bottom - (place.bottom - place.top)) / 2, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace kesto
