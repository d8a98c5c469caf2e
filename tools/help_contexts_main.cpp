// Fills the table of context numbers of the help file that is named with the topics of the
// add-on. usage: help_contexts FILE.hlp
#include <cstdio>
#include <string>
#include <vector>

#include "addon/ide/help_topics.h"
#include "tools/help_contexts.h"

namespace {

bool readFile(const char* path, std::string& bytes) {
  std::FILE* file = std::fopen(path, "rb");
  if (file == nullptr) {
    return false;
  }
  char block[4096];
  for (std::size_t got = 0; (got = std::fread(block, 1, sizeof block, file)) > 0;) {
    bytes.append(block, got);
  }
  const bool whole = std::ferror(file) == 0;
  return std::fclose(file) == 0 && whole;
}

bool writeFile(const char* path, const std::string& bytes) {
  std::FILE* file = std::fopen(path, "wb");
  if (file == nullptr) {
    return false;
  }
  const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && whole;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: help_contexts FILE.hlp\n", stderr);
    return 2;
  }
  std::vector<kesto::HelpContext> contexts;
  for (const kesto::HelpTopicWord& entry : kesto::kHelpTopicWords) {
    contexts.push_back({entry.topic, entry.word});
  }
  std::string help;
  std::string wrong = "cannot be read";
  if (readFile(arguments[1], help)) {
    wrong = kesto::fillHelpContexts(help, contexts);
    if (wrong.empty() && !writeFile(arguments[1], help)) {
      wrong = "cannot be written";
    }
  }
  if (!wrong.empty()) {
    std::fprintf(stderr, "%s: %s\n", arguments[1], wrong.c_str());
  }
  return wrong.empty() ? 0 : 1;
}
