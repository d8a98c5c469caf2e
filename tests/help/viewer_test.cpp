// Every topic of the help file, as the system's viewer shows it when it is asked for a number.
#include <windows.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>

#include "addon/ide/help_topics.h"
#include "doctest.h"

namespace {

// The headings as the viewer shows them, by the words of the topics: chapters and the topics
// in them are numbered in the order of the pages.
std::map<std::string, std::string> headings() {
  std::map<std::string, std::string> found = {{"Top", "Contents of the Kesto help"}};
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

std::string helpPath() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  const std::string program(path);
  return program.substr(0, program.rfind('\\')) + "\\Kestoaob.hlp";
}

std::string shownText() {
  const HWND viewer = FindWindowA("MS_WINHELP", nullptr);
  const HWND text = FindWindowExA(viewer, nullptr, "RichEdit20A", nullptr);
  std::string shown(20000, '\0');
  shown.resize(static_cast<size_t>(
      SendMessageA(text, WM_GETTEXT, shown.size(), reinterpret_cast<LPARAM>(shown.data()))));
  return shown;
}

}  // namespace

TEST_CASE("the viewer shows the right topic for every number") {
  const std::map<std::string, std::string> expected = headings();
  const std::string path = helpPath();
  for (const kesto::HelpTopicWord& entry : kesto::kHelpTopicWords) {
    REQUIRE(WinHelpA(nullptr, path.c_str(), HELP_CONTEXT, entry.topic));
    const std::string shown = shownText();
    printf("[%s] %u\n", shown.substr(0, 80).c_str(), shown.size());
    const auto heading = expected.find(entry.word);
    REQUIRE_MESSAGE(heading != expected.end(), entry.word);
    CHECK(shown.substr(0, shown.find('\r')) == heading->second);
  }
  WinHelpA(nullptr, path.c_str(), HELP_QUIT, 0);
}
