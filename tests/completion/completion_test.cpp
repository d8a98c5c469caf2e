// Keyword files as they are read, what answers to a prefix, and strike after strike.
#include "addon/completion/completion.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "addon/foundation/identifier.h"
#include "doctest.h"
#include "tests/data_file.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

struct Completing {
  PlayedDisk disk;
  Tableau<String> paths;
  Completion completion;

  Completing(std::initializer_list<std::string> texts) {
    for (const std::string& text : texts) {
      const std::string path = std::string("F").append(std::to_string(paths.count()));
      disk.put(path, text);
      paths.append(new String(path.c_str()));
    }
    completion.load(disk, paths);
  }

  Pairs keywords() const {
    Pairs all;
    for (int i = 0; i < completion.keywords().count(); ++i) {
      const Keyword& keyword = completion.keywords().at(i);
      all.emplace_back(keyword.text(), keyword.description());
    }
    return all;
  }
  void expect(const char* word, const char* text, const std::string& status) {
    CAPTURE(word);
    const CompletionStep step = completion.strike(word);
    CHECK(step.text == text);
    CHECK(step.status == status);
  }
};

}  // namespace

TEST_CASE("a keyword file's lines become keywords") {
  const Completing lines({"[heading]\n\nb|what|b does \na\r\x01 \x0D\t\nend \n|x\n \nlast|"});
  // Blanks stay, codes below 14 go, as far as they stand at the end.
  CHECK(lines.keywords() == Pairs{{"", "x"},
                                  {" ", ""},
                                  {"a\r\x01 ", ""},
                                  {"b", "what|b does "},
                                  {"end ", ""},
                                  {"last", ""}});
  // 398 characters are a line; what is longer goes on in the next.
  const std::string full(398, 'f');
  CHECK(Completing({full + "\ng\n"}).keywords() == Pairs{{full, ""}, {"g", ""}});
  CHECK(Completing({full + "[\n" + full + "ab|c\n"}).keywords() ==
        Pairs{{"ab", "c"}, {full, ""}, {full, ""}});
  CHECK(Completing({std::string("x\0y\nz\n", 6)}).keywords() == Pairs{{"x", ""}, {"z", ""}});
}

TEST_CASE("all files are one list in byte order, equal keywords in the order of the files") {
  Completing files({"b\nZ|1\n\xe9t\n_\n", "gone\n", "Z|2\nZ0\na|3\na|4\nZ|0\n"});
  files.disk.files.erase("F1");
  CHECK(files.completion.complete("a").result == 2);
  files.completion.load(files.disk, files.paths);
  const Pairs sorted = {{"Z", "1"}, {"Z", "2"}, {"Z", "0"}, {"Z0", ""},   {"_", ""},
                        {"a", "3"}, {"a", "4"}, {"b", ""},  {"\xe9t", ""}};
  CHECK(files.keywords() == sorted);
  CHECK(files.completion.lastMatch() == -1);
  // Many, with long beginnings in common, as by comparing them.
  std::string text;
  std::vector<std::pair<std::string, int>> expected;
  unsigned state = 1;
  for (int i = 0; i < 4000; ++i) {
    state = state * 1103515245U + 12345U;
    const unsigned dice = state >> 16;
    std::string word("k");
    word.append(dice % 3 * 8 + dice / 3 % 2, 'p').append(&"\xC3xYz_"[dice / 6 % 5], dice / 30 % 2);
    word += dice % 7 != 0 ? std::to_string(dice / 200 % 50) : "";
    text += word + "|" + std::to_string(i) + "\n";
    expected.emplace_back(word, i);
  }
  std::sort(expected.begin(), expected.end());
  const Pairs many = Completing({text}).keywords();
  REQUIRE(many.size() == expected.size());
  CHECK(
      std::equal(many.begin(), many.end(), expected.begin(), [](const auto& one, const auto& two) {
        return one.first == two.first && one.second == std::to_string(two.second);
      }));
}

TEST_CASE("a strike completes as far as the keywords agree, another one describes") {
  Completing words({"print|writes 100%% of it, %d %s %n %\nprivate|mine\nzero\n",
                    "printf|formats\nprintf|again\n"});
  const char* const none = "No available completion";
  words.expect("x", "", none);
  words.expect("prints", "", none);
  words.expect("printff", "", none);
  words.expect("pri", "", "Possible :print, printf, printf, private");
  words.expect("prin", "t", "Possible :print, printf, printf");
  // Its description counts as shown, as the word was just completed to it.
  words.expect("print", "", "writes 100% of it, %d %s %n %");
  words.expect("print", "", "writes 100% of it, %d %s %n %");
  words.expect("printf", "", "Possible :printf, printf");
  words.expect("nothing", "", none);
  words.expect("printf", "", "formats");
  words.expect("priv", "ate", "Completion done");
  CHECK(words.completion.lastMatch() == 3);
  words.expect("private", "", "mine");
  words.expect("zero", "", "Completion complete");
  words.expect("zero", "", "Completion complete");
  words.expect("printf", "", "Possible :printf, printf");
  Completing nothing({});
  nothing.expect("pri", "", none);
}

TEST_CASE("the list in the status line stops before 1,024 characters") {
  const std::string line(396, 'a');
  const auto listed = [&](std::size_t last) {
    Completing many({line + "\n" + line + "\n" + std::string(last, 'b') + "\nc\n"});
    return many.completion.complete("").status.size();
  };
  // 10 for "Possible :", twice 396 with ", " behind, and 217 are 1,023. What does not fit ends it.
  CHECK(listed(217) == 1023);
  CHECK(listed(218) == 804);
}

TEST_CASE("the keyword files that come along can be completed and describe every word") {
  std::initializer_list<std::string> none;
  Completing all(none);
  for (const char* name : {"c++", "c-library", "win32-messages", "win32-notifications"}) {
    const std::string path = std::string(TEST_DATA_DIR "/../examples/keywords/") + name + ".kwd";
    all.disk.put(name, tests::contents(path));
    all.paths.append(new String(name));
  }
  all.completion.load(all.disk, all.paths);
  CHECK(all.completion.keywords().count() > 1000);
  std::string before;
  for (const auto& keyword : all.keywords()) {
    const std::string& text = keyword.first;
    const std::string& description = keyword.second;
    CAPTURE(text);
    CHECK(text != before);
    CHECK(std::all_of(text.begin(), text.end(), isIdentifierCharacter));
    CHECK(!description.empty());
    CHECK(description.size() < 200);
    const auto percents = std::count(description.begin(), description.end(), '%');
    CHECK(percents % 2 == 0);
    CHECK(description.size() - formattedAlone(description).size() ==
          static_cast<std::size_t>(percents / 2));
    before = text;
  }
}

}  // namespace kesto
