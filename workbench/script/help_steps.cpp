// The system's help viewer, a program of its own.
#include "workbench/script/steps.h"

namespace workbench {
namespace {

constexpr char kViewerClass[] = "MS_WINHELP";
constexpr char kTextClass[] = "RichEdit20A";
constexpr UINT kPatienceMs = 2000;  // with a viewer that is busy
constexpr size_t kLongestTopic = 60000;

std::string shownTopic(HWND viewer) {
  const HWND text = FindWindowExA(viewer, nullptr, kTextClass, nullptr);
  std::string shown(kLongestTopic, '\0');
  DWORD_PTR length = 0;
  if (text == nullptr ||
      SendMessageTimeoutA(text, WM_GETTEXT, shown.size(), reinterpret_cast<LPARAM>(shown.data()),
                          SMTO_ABORTIFHUNG, kPatienceMs, &length) == 0) {
    return {};
  }
  shown.resize(length < shown.size() ? length : 0);
  return shown;
}

}  // namespace

StepResult stepExpectHelp(StepTry& step) {
  const HWND viewer = FindWindowA(kViewerClass, nullptr);
  const std::string shown = viewer != nullptr ? shownTopic(viewer) : std::string();
  if (!wildcardMatch(step.arg(0), shown)) {
    const std::string what = "expected help \"" + step.arg(0) + "\": ";
    return step.again(what + (shown.empty()
                                  ? "no topic is shown"
                                  : "it is \"" + shown.substr(0, shown.find('\r')) + "\""));
  }
  if (step.argCount() == 1) {
    // What is asked of it next must not meet one that is about to go.
    SendMessageTimeoutA(viewer, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, kPatienceMs, nullptr);
  } else if (step.arg(1) != "keep") {
    return step.fail("only \"keep\" may follow the text");
  }
  return StepResult::kDone;
}

}  // namespace workbench
