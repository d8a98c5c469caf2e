// The scanner on the files of data/: NAME.src is scanned; NAME.functions,
// NAME.sorted and NAME.includes, as far as they are there, hold what comes of it.
// Functions are shown as LINE|CLASS|NAME|. A source without CR is scanned with all
// three kinds of line ends.
#include "addon/navigation/source_scanner.h"

#include <string>

#include "doctest.h"
#include "tests/data_file.h"

namespace kesto {

namespace {

namespace fs = std::filesystem;

std::string replaced(std::string text, const std::string& line_end) {
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += line_end.size()) {
    text.replace(at, 1, line_end);
  }
  return text;
}

std::string shown(const Tableau<Fnc>& functions) {
  std::string all;
  for (int i = 0; i < functions.count(); ++i) {
    const Fnc& f = *functions[i];
    all += std::to_string(f.line()) + '|' + f.className() + '|' + f.name() + "|\n";
  }
  return all;
}

std::string scanned(const std::string& kind, const std::string& source) {
  std::string all;
  if (kind == ".includes") {
    Tableau<String> includes;
    scanIncludes(source, includes);
    for (int i = 0; i < includes.count(); ++i) {
      all += includes[i]->text();
      all += '\n';
    }
    return all;
  }
  Tableau<Fnc> functions;
  scanFunctions(source, functions);
  if (kind == ".sorted") {
    sortFunctions(functions);
  }
  return shown(functions);
}

}  // namespace

TEST_CASE("the scanner finds what the expected files list") {
  int cases = 0;
  for (const auto& entry : fs::directory_iterator(TEST_DATA_DIR "/navigation/data")) {
    fs::path path = entry.path();
    if (path.extension() != ".src") {
      continue;
    }
    const std::string source = tests::contents(path);
    for (const char* kind : {".functions", ".sorted", ".includes"}) {
      if (!fs::exists(path.replace_extension(kind))) {
        continue;
      }
      CAPTURE(path.string());
      ++cases;
      for (const char* line_end : {"\n", "\r\n", "\r"}) {
        if (source.find('\r') == std::string::npos || *line_end == '\n') {
          tests::checkFile(path, scanned(kind, replaced(source, line_end)));
        }
      }
    }
  }
  CHECK(cases >= 9);
}

TEST_CASE("a scan replaces the list of the one before") {
  Tableau<Fnc> functions;
  Tableau<String> includes;
  for (int i = 0; i < 2; ++i) {
    scanFunctions("int a()", functions);
    scanIncludes("#include <a>", includes);
    CHECK(functions.count() == 1);
    CHECK(includes.count() == 1);
  }
}

TEST_CASE("an include name is cut at 199 characters") {
  Tableau<String> includes;
  scanIncludes(
      "#include <" + std::string(199, 'a') + ">\n#include \"" + std::string(300, 'b') + '"',
      includes);
  REQUIRE(includes.count() == 2);
  CHECK(includes[0]->text() == std::string(199, 'a'));
  CHECK(includes[1]->text() == std::string(199, 'b'));
}

}  // namespace kesto
