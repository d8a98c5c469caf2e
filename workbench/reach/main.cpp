// Speaks to the Workbench that runs on this desktop, for the script that started it.
//
//   reach open SECONDS [PATH]   has it open the path and come forward
//   reach close SECONDS         closes it as its close box does
//
// Both wait so long for it to come up. Exit codes: 0 done, 1 it is not there or refuses,
// 2 it does not answer, 3 it waits for an answer itself, 4 wrong use.
#include <windows.h>

#include <cstdlib>
#include <cstring>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/hand_over.h"

namespace workbench {
namespace {

constexpr int kDone = 0;
constexpr int kNobody = 1;
constexpr int kNoAnswer = 2;
constexpr int kAsking = 3;
constexpr int kWrongUse = 4;
constexpr DWORD kPollMs = 50;
// Who says nothing for so long is taken to hang.
constexpr UINT kAnswerMs = 5000;

// Null when none is there after so long.
HWND frameWithin(DWORD milliseconds) {
  const DWORD began = GetTickCount();
  HWND frame = FindWindowA(ideapi::kFrameClass, nullptr);
  while (frame == nullptr && GetTickCount() - began < milliseconds) {
    Sleep(kPollMs);
    frame = FindWindowA(ideapi::kFrameClass, nullptr);
  }
  return frame;
}

int openThere(HWND frame, const char* path) {
  COPYDATASTRUCT data = {};
  data.dwData = kHandOver;
  data.cbData = static_cast<DWORD>(std::strlen(path) + 1);
  data.lpData = const_cast<char*>(path);
  DWORD taken = FALSE;
  if (SendMessageTimeoutA(frame, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_ABORTIFHUNG,
                          kAnswerMs, &taken) == 0) {
    return kNoAnswer;
  }
  return taken != FALSE ? kDone : kNobody;
}

int closeThere(HWND frame) {
  DWORD nothing = 0;
  if (SendMessageTimeoutA(frame, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kAnswerMs, &nothing) == 0) {
    return kNoAnswer;
  }
  if (IsWindowEnabled(frame) == 0) {
    return kAsking;
  }
  return PostMessageA(frame, WM_CLOSE, 0, 0) != 0 ? kDone : kNobody;
}

int carryOut(int count, char** arguments) {
  const bool opens = count >= 3 && count <= 4 && std::strcmp(arguments[1], "open") == 0;
  const bool closes = count == 3 && std::strcmp(arguments[1], "close") == 0;
  if (!opens && !closes) {
    return kWrongUse;
  }
  const HWND frame =
      frameWithin(static_cast<DWORD>(std::strtoul(arguments[2], nullptr, 10)) * 1000);
  if (frame == nullptr) {
    return kNobody;
  }
  return opens ? openThere(frame, count == 4 ? arguments[3] : "") : closeThere(frame);
}

}  // namespace
}  // namespace workbench

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  return workbench::carryOut(__argc, __argv);
}
