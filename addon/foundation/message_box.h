// The one door to message boxes. Exactly one definition of showMessage is linked
// into a program: the real MessageBoxA in the add-on, a recorder in the tests.
// User-interface thread; blocks until the box is answered.
#pragma once

namespace kesto {

inline constexpr unsigned kMessageOk = 0x00;
inline constexpr unsigned kMessageOkCancel = 0x01;
inline constexpr unsigned kMessageYesNoCancel = 0x03;
inline constexpr unsigned kMessageYesNo = 0x04;
inline constexpr unsigned kMessageIconHand = 0x10;
inline constexpr unsigned kMessageIconQuestion = 0x20;
inline constexpr unsigned kMessageIconExclamation = 0x30;
inline constexpr unsigned kMessageIconInformation = 0x40;

inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerCancel = 2;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

// Shows text under caption. owner: a window handle, or null for none; flags: one
// of the button sets above, with an icon or none. Returns the answer, 0 on failure.
int showMessage(void* owner, const char* text, const char* caption, unsigned flags);

}  // namespace kesto
