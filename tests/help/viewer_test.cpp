// The help file as the system's viewer shows it, asked through the add-on's own object.
#include <windows.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>

#include "addon/ide/help_file.h"
#include "addon/ide/help_topics.h"
#include "doctest.h"

namespace {

constexpr DWORD kPatience = 20000;  // milliseconds

// The headings as the viewer shows them, by the words of the topics: chapters and the topics
// in them are numbered in the order of the pages.
std::map<std::string, std::string> headings() {
  std::map<std::string, std::string> found = {{"Top", "Kesto for Borland C++ 5.0"}};
  int chapter = 0;
  int topic = 0;
  for (const char* page : {"title_bar", "searches", "top_bar", "features", "options"}) {
    std::ifstream file(HELP_PAGES + std::string(page) + ".but");
    std::string heading;
    for (std::string line; std::getline(file, line);) {
      const std::string title(line, std::min(line.size(), line.find("} ") + 2));
      if (line.rfind("\\C{", 0) == 0) {
        topic = 0;
        heading = "Chapter " + std::to_string(++chapter) + ": " + title;
      } else if (line.rfind("\\H{", 0) == 0) {
        heading = "Topic " + std::to_string(chapter) + "." + std::to_string(++topic) + ": " + title;
      } else if (line.rfind("\\cfg{winhelp-topic}{", 0) == 0) {
        found[line.substr(20, line.size() - 21)] = heading;
      }
    }
  }
  return found;
}

HWND viewer() {
  return FindWindowA("MS_WINHELP", nullptr);
}

std::string shownHeading() {
  const HWND text = FindWindowExA(viewer(), nullptr, "RichEdit20A", nullptr);
  std::string shown(200, '\0');
  const LRESULT length =
      SendMessageA(text, WM_GETTEXT, shown.size(), reinterpret_cast<LPARAM>(shown.data()));
  return shown.substr(0, std::min(shown.find('\r'), static_cast<size_t>(length)));
}

// A box of another program, as the viewer's.
HWND strangeBox() {
  HWND box = nullptr;
  while ((box = FindWindowExA(nullptr, box, "#32770", nullptr)) != nullptr) {
    DWORD process = 0;
    GetWindowThreadProcessId(box, &process);
    if (process != GetCurrentProcessId() && IsWindowVisible(box)) {
      return box;
    }
  }
  return nullptr;
}

// Whether it came true; what other programs do sends nothing here that could be waited for.
template <class Condition>
bool comes(Condition condition) {
  const DWORD began = GetTickCount();
  while (!condition()) {
    if (GetTickCount() - began > kPatience) {
      return false;
    }
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      DispatchMessageA(&message);
    }
  }
  return true;
}

}  // namespace

TEST_CASE("the viewer shows the right topic for every number, and is closed at the end") {
  // What the environment's own files may refer to.
  CHECK(kesto::kHelpPageEditor == 12);
  CHECK(kesto::kHelpPageTopBar == 16);
  const std::map<std::string, std::string> expected = headings();
  const HMODULE module = LoadLibraryExA("Kestoaob.dll", nullptr, DONT_RESOLVE_DLL_REFERENCES);
  REQUIRE(module != nullptr);
  {
    kesto::HelpFile help(module, nullptr);
    for (const kesto::HelpTopicWord& entry : kesto::kHelpTopicWords) {
      const auto heading = expected.find(entry.word);
      REQUIRE_MESSAGE(heading != expected.end(), entry.word);
      help.showTopic(entry.topic);
      CHECK_MESSAGE(comes([&] { return shownHeading() == heading->second; }),
                    entry.word << " shows " << shownHeading());
    }
  }
  CHECK(comes([] { return viewer() == nullptr; }));
  FreeLibrary(module);
}

TEST_CASE("a viewer that waits for an answer keeps neither the IDE nor its end waiting") {
  // Beside this program there is no help file of its name; the viewer asks for it.
  {
    kesto::HelpFile help(nullptr, nullptr);
    help.showTopic(kesto::kHelpContents);
    REQUIRE(comes([] { return strangeBox() != nullptr; }));
    help.showTopic(kesto::kHelpTopBar);
  }
  // The IDE may be gone by the answer.
  REQUIRE(strangeBox() != nullptr);
  PostMessageA(strangeBox(), WM_COMMAND, IDNO, 0);
  CHECK(comes([] { return strangeBox() == nullptr; }));
}
