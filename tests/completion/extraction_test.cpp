// Keywords taken from sources, and the files they are written to.
#include "addon/completion/keyword_extraction.h"

#include "doctest.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

namespace {

class Answer : public ReplaceQuestion {
 public:
  bool yes = false;
  std::string asked;
  bool mayReplace(const char* keyword_file) override {
    asked += keyword_file;
    return yes;
  }
};

}  // namespace

TEST_CASE("definitions at the start of a line give their names") {
  const struct {
    const char* source;
    const char* keywords;
  } rows[] = {
      {"int Stack::push(int v)\n{\nint Stack::pop()\nvoid *alloc(size_t n)\r\n",
       "Stack\npush\npop\nalloc\n"},
      {"int A::f(\nint g(\nint A::h(\nint B::i(\nint A::j(", "A\nf\ng\nh\nB\ni\nA\nj\n"},
      {"char &Buffer::at(int i)\nchar **names(void)\n", "Buffer\nat\nnames\n"},
      {"char *&*A::*&* b (int (*)(int))", "A\nb \n"},  // the text after "::" as it stands
      {"int foo (\nint\tbar(\nbaz\t (", "foo\nbar\nbaz\n"},
      {"int f(); \t\nint g(int a); // no end\nint h(int a)   ;\n int i(\n\tint j(\n", "g\n"},
      {": a(b)\n// b(c)\n#define c(d)\n(e)(f)\nx = y\n(\n*(\na (", "a\n"},
      {"~A::A(\nA::~A(\nA ::b(\nA::(\nstd::map<a, b> C::d(\nC:: * e(",
       "~A\nA\nA\n~A\nb\nstd\nmap<a, b> C::d\nC\ne\n"},
      {"bool A::operator==(\nbool A::operator()(\nx::y(z::w(\n\xe9t\xe9(",
       "A\noperator==\noperator\nx\ny\n\xe9t\xe9\n"},
      {"", ""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.source);
    CHECK(extractKeywords(row.source) == row.keywords);
  }
  // 1,022 characters are a line; what is longer goes on in the next.
  const std::string long_name(1021, 'n');
  CHECK(extractKeywords(long_name + "(a)\n") == long_name + "\n");
  CHECK(extractKeywords("x" + long_name + "(a)\n").empty());
}

TEST_CASE("the keyword file stands beside its source") {
  CHECK(keywordFilePath("C:\\a.b\\x.y.cpp") == "C:\\a.b\\x.y.kwd");
  CHECK(keywordFilePath("a/.h") == "a/.kwd");
  CHECK(keywordFilePath("x.") == "x.kwd");
  CHECK(keywordFilePath("C:\\a.b\\x").empty());
  CHECK(keywordFilePath("a.b/x").empty());
  CHECK(keywordFilePath("C:\\words.KwD").empty());
}

TEST_CASE("an extraction replaces what extractions write, and asks for what a person wrote") {
  PlayedDisk disk;
  Answer answer;
  const auto extracted = [&](const char* source) {
    return extractKeywordFile(disk, source, answer);
  };
  CHECK(extracted("a.cpp") == Extraction::kFailed);
  disk.put("a.cpp", "int f(\n");
  disk.put("words.kwd", "kept");
  CHECK(extracted("words.kwd") == Extraction::kFailed);
  CHECK(extracted("a.cpp") == Extraction::kDone);
  disk.put("a.cpp", "int A::g(\nbool A::operator|(\nbool A::operator||(\nA &A::operator|=(\n");
  CHECK(extracted("a.cpp") == Extraction::kDone);
  const std::string written = "A\ng\noperator|\noperator||\noperator|=\n";
  CHECK(disk.files["a.kwd"].text == written);
  CHECK(extracted("a.cpp") == Extraction::kDone);
  CHECK(answer.asked.empty());
  // Whatever step fails, the old text is whole and alone.
  const auto before = disk.texts();
  for (int step = 1; step <= 3; ++step) {
    disk.changes = 0;
    disk.failing = step;
    CAPTURE(step);
    CHECK(extracted("a.cpp") == Extraction::kFailed);
    CHECK(disk.texts() == before);
  }
  disk.failing = 0;
  for (const char* handmade : {"g\nh|does it\n", "[mine]\ng\n", "g\n[mine]\n", "\xFF\xFEg"}) {
    disk.put("a.kwd", handmade);
    answer = Answer();
    CHECK(extracted("a.cpp") == Extraction::kKept);
    CHECK(answer.asked == "a.kwd");
    CHECK(disk.files["a.kwd"].text == handmade);
    answer.yes = true;
    CHECK(extracted("a.cpp") == Extraction::kDone);
    CHECK(disk.files["a.kwd"].text == written);
  }
  disk.files.erase("a.kwd");
  disk.directories.insert("a.kwd");
  CHECK(extracted("a.cpp") == Extraction::kFailed);
}

}  // namespace kesto
