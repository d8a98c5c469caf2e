// Keywords extracted from sources, and the files they are written to: the input's first
// byte says which step fails, then come the old keyword file up to a form feed, and the
// source.
#include <algorithm>
#include <string>

#include "addon/completion/keyword_extraction.h"
#include "addon/completion/keyword_list.h"
#include "addon/foundation/text_file.h"
#include "fuzz/fuzz.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

namespace {

class Answering : public ReplaceQuestion {
 public:
  explicit Answering(bool yes) : yes_(yes) {}
  bool mayReplace(const char* /*keyword_file*/) override {
    asked = true;
    return yes_;
  }
  bool asked = false;

 private:
  bool yes_;
};

// Line by line alone, where a class is named each time.
std::string extractedByLines(std::string_view source) {
  std::string all;
  std::string last_class;
  TextLines lines(source, 1023);
  for (std::string_view line; lines.next(line);) {
    const std::string names = extractKeywords(line);
    const auto ends = std::count(names.begin(), names.end(), '\n');
    FUZZ_CHECK(ends <= 2);
    std::string_view rest = names;
    if (ends == 2 && takeLine(rest) == last_class) {
      all += rest;
      continue;
    }
    all += names;
    if (ends == 2) {
      last_class = names.substr(0, names.find('\n'));
    }
  }
  return all;
}

void checkNames(std::string_view source, std::string_view names) {
  while (!names.empty()) {
    const std::string_view name = takeLine(names);
    FUZZ_CHECK(!name.empty() && static_cast<unsigned char>(name.front()) > ' ');
    FUZZ_CHECK(name.front() != '*' && name.front() != '&');
    FUZZ_CHECK(name.find_first_of(std::string_view("(\0", 2)) == name.npos);
    FUZZ_CHECK(source.find(name) != source.npos);
  }
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  std::string_view input = inputText(data, size);
  PlayedDisk disk;
  const int choice = input.empty() ? 0 : input.front();
  disk.failing = choice % 5 + 1;
  input.remove_prefix(std::min<std::size_t>(input.size(), 1));
  const std::string_view old = input.substr(0, input.find('\f'));
  std::string source(input.substr(std::min(input.size(), old.size() + 1)));
  takeTextMode(source);

  const std::string names = extractKeywords(source);
  FUZZ_CHECK(names == extractedByLines(source));
  checkNames(source, names);

  disk.put("C:\\s.cpp", source);
  if (choice % 2 == 0) {
    disk.put("C:\\s.kwd", std::string(old));
  }
  const auto before = disk.texts();
  Answering answer(choice % 3 == 0);
  const Extraction extraction = extractKeywordFile(disk, "C:\\s.cpp", answer);
  auto expected = before;
  if (extraction == Extraction::kDone) {
    expected["C:\\s.kwd"] = names;
  }
  FUZZ_CHECK(disk.texts() == expected);
  FUZZ_CHECK((extraction == Extraction::kKept) <= answer.asked);
  std::vector<Keyword> keywords;
  readKeywords(old, keywords);
  const bool described =
      choice % 2 == 0 && std::any_of(keywords.begin(), keywords.end(), [](const Keyword& keyword) {
        return !keyword.description().empty() && keyword.text() != "operator";
      });
  FUZZ_CHECK(!described || answer.asked);
  return 0;
}
