#include "addon/ide/report_header.h"

#include "addon/ide/find_window.h"
#include "addon/ide/frame_title.h"

namespace kesto {
namespace {

constexpr int kTextSize = 512;

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

std::string frameProject() {
  return std::string(projectOfTitle(titleOf(findFrame()), titleOf(maximisedDocument())));
}

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

}  // namespace kesto
