// Keyword files, and words completed from them: the input's first line holds the words,
// the rest are the files, parted by form feeds.
#include <algorithm>
#include <string>
#include <vector>

#include "addon/completion/completion.h"
#include "addon/foundation/text_file.h"
#include "fuzz/fuzz.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

namespace {

using Words = std::vector<std::string_view>;

Words partsOf(std::string_view text, char separator) {
  Words parts;
  for (std::size_t end = 0; end != text.npos; text.remove_prefix(std::min(text.size(), end + 1))) {
    end = text.find(separator);
    parts.push_back(text.substr(0, end));
  }
  return parts;
}

// All keywords in their order, found without counting and halving.
std::vector<Keyword> sorted(const std::vector<std::string>& files) {
  std::vector<Keyword> keywords;
  for (const std::string& file : files) {
    const std::size_t before = keywords.size();
    readKeywords(file, keywords);
    for (std::size_t i = before; i < keywords.size(); ++i) {
      const Keyword& keyword = keywords[i];
      FUZZ_CHECK(isWithin(keyword.text(), file) && isWithin(keyword.description(), file));
      FUZZ_CHECK(keyword.text().size() + keyword.description().size() < kKeywordLineSize);
      FUZZ_CHECK(keyword.text().find_first_of(std::string_view("|\n\0", 3)) == std::string::npos);
      FUZZ_CHECK(!keyword.text().starts_with('['));
    }
  }
  std::stable_sort(keywords.begin(), keywords.end(), [](const Keyword& left, const Keyword& right) {
    return left.text() < right.text();
  });
  return keywords;
}

void checkAnswer(Completion& completion, const std::vector<Keyword>& all, std::string_view word) {
  Words matches;
  int first = -1;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].text().starts_with(word)) {
      first = matches.empty() ? static_cast<int>(i) : first;
      matches.push_back(all[i].text());
    }
  }
  const CompletionAnswer answer = completion.complete(word);
  FUZZ_CHECK(answer.result == static_cast<int>(std::min<std::size_t>(matches.size(), 2)));
  if (matches.empty()) {
    FUZZ_CHECK(answer.text.empty() && answer.status.empty());
    return;
  }
  FUZZ_CHECK(completion.lastMatch() == first);
  const std::string whole = std::string(word) + answer.text;
  const auto goesOn = [&](std::string_view match) {
    return match.starts_with(whole) && match.size() > whole.size() &&
           matches[0].size() > whole.size() && match[whole.size()] == matches[0][whole.size()];
  };
  FUZZ_CHECK(std::all_of(matches.begin(), matches.end(),
                         [&](std::string_view match) { return match.starts_with(whole); }));
  FUZZ_CHECK(matches.size() > 1 || matches[0] == whole);
  FUZZ_CHECK(!std::all_of(matches.begin(), matches.end(), goesOn));
  if (matches.size() == 1) {
    FUZZ_CHECK(answer.status == "Completion complete");
    return;
  }
  std::string list = "Possible :";
  const char* between = "";
  for (const std::string_view match : matches) {
    const std::string longer = list + between + std::string(match);
    if (longer.size() >= 1024) {
      break;
    }
    list = longer;
    between = ", ";
  }
  FUZZ_CHECK(answer.status == list);
}

void checkStrikes(Completion& completion, std::string_view word) {
  const CompletionStep step = completion.strike(word);
  FUZZ_CHECK(!step.status.empty() || completion.lastMatch() >= 0);
  FUZZ_CHECK(step.status.size() <= kStatusTextLimit);
  // A word that was completed is unique, or goes no further; from there on every strike
  // but one does the same.
  const std::string whole = std::string(word) + step.text;
  FUZZ_CHECK(completion.strike(whole).text.empty() || completion.complete(word).result == 0);
  const CompletionStep third = completion.strike(whole);
  FUZZ_CHECK(third.text.empty() && completion.strike(whole).status == third.status);
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  std::string_view input = inputText(data, size);
  const std::string_view words = takeLine(input);
  PlayedDisk disk;
  Tableau<String> paths;
  std::vector<std::string> files;
  for (const std::string_view file : partsOf(input, '\f')) {
    files.emplace_back(file);
    takeTextMode(files.back());
    paths.append(new String(std::to_string(files.size()).c_str()));
    disk.put(paths.at(paths.count() - 1)->text(), files.back());
  }
  Completion completion;
  completion.load(disk, paths);
  const std::vector<Keyword> all = sorted(files);
  FUZZ_CHECK(completion.keywords().count() == static_cast<int>(all.size()));
  for (int i = 0; i < completion.keywords().count(); ++i) {
    const Keyword& keyword = completion.keywords().at(i);
    FUZZ_CHECK(keyword.text() == all[static_cast<std::size_t>(i)].text());
    FUZZ_CHECK(keyword.description() == all[static_cast<std::size_t>(i)].description());
  }
  for (const std::string_view word : partsOf(words, ' ')) {
    checkAnswer(completion, all, upToZero(word));
    checkStrikes(completion, upToZero(word));
  }
  return 0;
}
