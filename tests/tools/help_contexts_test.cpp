// The table of context numbers, in a help file that is put together here.
#include "tools/help_contexts.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "doctest.h"

using kesto::fillHelpContexts;
using kesto::HelpContext;

namespace {

std::string bytes(std::uint32_t value, int width) {
  std::string text;
  for (; width > 0; --width, value >>= 8) {
    text += static_cast<char>(value);
  }
  return text;
}

std::string page(std::size_t size, std::uint32_t count, std::uint32_t next,
                 const std::string& entries) {
  std::string text = bytes(0, 2) + bytes(count, 2) + bytes(0xFFFF, 2) + bytes(next, 2) + entries;
  text.resize(size);
  return text;
}

std::string tree(std::size_t size, std::uint32_t root, std::uint32_t levels,
                 const std::vector<std::string>& pages) {
  std::string text = bytes(0x293B, 2) + bytes(2, 2) + bytes(size, 2) + std::string(20, '\0') +
                     bytes(root, 2) + bytes(0xFFFF, 2) + bytes(pages.size(), 2) + bytes(levels, 2) +
                     bytes(0, 4);
  for (const std::string& one : pages) {
    text += one;
  }
  return text;
}

std::string inner(const std::string& content) {
  return bytes(content.size() + 9, 4) + bytes(content.size(), 4) + '\0' + content;
}

using Files = std::vector<std::pair<std::string, std::string>>;

// The directory stands in the middle, before what is to be found by it.
std::string helpFile(const Files& files, std::size_t before_directory) {
  constexpr std::size_t kDirectory = 9 + 38 + 128;
  std::string body;
  std::string entries;
  std::size_t directory = 0;
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (i == before_directory) {
      directory = 16 + body.size();
      body += std::string(kDirectory, '\0');
    }
    entries += files[i].first + '\0' + bytes(16 + body.size(), 4);
    body += inner(files[i].second);
  }
  body.replace(directory - 16, kDirectory,
               inner(tree(128, 0, 1, {page(128, files.size(), 0xFFFF, entries)})));
  return bytes(0x35F3F, 4) + bytes(directory, 4) + bytes(0xFFFFFFFF, 4) +
         bytes(16 + body.size(), 4) + body;
}

// "a" is 0x11, "Top" 0x10959, "contents" 0x25F4558A. Their places are 7, 8 and 9, the first of
// them in a leaf of its own.
Files sampleFiles(const std::string& table, std::uint32_t date) {
  const std::string first = bytes(0x11, 4) + bytes(7, 4);
  const std::string rest = bytes(0x10959, 4) + bytes(8, 4) + bytes(0x25F4558A, 4) + bytes(9, 4);
  const std::string index =
      bytes(0, 2) + bytes(1, 2) + bytes(0, 2) + bytes(0x10959, 4) + bytes(1, 2);
  return {{"|FONT", "faces"},
          {"|CTXOMAP", table},
          {"|CONTEXT",
           tree(32, 2, 2,
                {page(32, 1, 1, first), page(32, 2, 0xFFFF, rest), index + std::string(20, '\0')})},
          {"|SYSTEM", bytes(0x036C, 2) + bytes(33, 2) + bytes(1, 2) + bytes(date, 4) + "rest"},
          {"|TOPIC", "text"}};
}

}  // namespace

TEST_CASE("a page's word has the number that readers of help files give it") {
  // Values known from other files of this kind; letters ignore case, 0 is no number.
  const std::map<std::string, std::uint32_t> known = {{"a", 0x11},
                                                      {"Top", 0x10959},
                                                      {"z.9_", 0x334C5A},
                                                      {"contents", 0x25F4558A},
                                                      {"Contents", 0x25F4558A},
                                                      {"first_page", 0xF7AAAA50},
                                                      {"with blank", 0},
                                                      {"caf\xE9", 0}};
  for (const auto& [word, hash] : known) {
    CHECK(kesto::helpWordHash(word) == hash);
  }
}

TEST_CASE("the table is filled and everything behind it is found again") {
  const std::vector<HelpContext> contexts = {{1, "top"}, {12, "contents"}, {70000, "A"}};
  const std::string table = bytes(3, 2) + bytes(1, 4) + bytes(8, 4) + bytes(12, 4) + bytes(9, 4) +
                            bytes(70000, 4) + bytes(7, 4);
  // The empty table, and one that is longer than the new one.
  for (const std::string& old : {bytes(0, 2), std::string(40, '\x55')}) {
    for (const std::size_t before_directory : {0U, 2U, 4U}) {
      std::string help = helpFile(sampleFiles(old, 0x12345678), before_directory);
      CHECK(fillHelpContexts(help, contexts) == "");
      CHECK(help == helpFile(sampleFiles(table, 0), before_directory));
    }
  }
}

TEST_CASE("what is wrong is told, and the file stays as it was") {
  const std::string sample = helpFile(sampleFiles(bytes(0, 2), 5), 2);
  const auto refusal = [](std::string help, const std::vector<HelpContext>& contexts) {
    const std::string before = help;
    std::string wrong = fillHelpContexts(help, contexts);
    CHECK((wrong.empty() || help == before));
    return wrong;
  };
  CHECK(refusal(sample, {{1, "top"}, {2, "nowhere"}}) == "no page has the word \"nowhere\"");
  CHECK(refusal(sample, {{2, "top"}, {2, "a"}}) == "the number of \"a\" does not ascend");
  CHECK(refusal(sample, {{0, "top"}}) == "the number of \"top\" does not ascend");
  // A page that viewers seek at different places, whether it has a number or not.
  std::string negative = sample;
  negative.replace(negative.find(bytes(0x25F4558A, 4)), 4, bytes(0xF7AAAA50, 4));
  CHECK(refusal(negative, {{1, "a"}}).rfind("not every viewer finds", 0) == 0);
  for (std::size_t size = 0; size < sample.size(); ++size) {
    CHECK_FALSE(refusal(sample.substr(0, size), {{1, "a"}}).empty());
  }
  for (const char* name : {"|SYSTEM", "|CONTEXT", "|CTXOMAP"}) {
    std::string without = sample;
    without[without.find(name) + 1] = 'x';
    CHECK(refusal(without, {{1, "a"}}) == std::string("damaged: it has no ") + name);
  }
  // Any other byte may be wrong: that it is survived is for the sanitizers to say.
  for (std::size_t at = 0; at < sample.size(); ++at) {
    for (const char damage : {'\x00', '\x01', '\x7F', '\xFF'}) {
      std::string damaged = sample;
      damaged[at] = damage;
      refusal(damaged, {{1, "a"}, {2, "top"}});
    }
  }
}
