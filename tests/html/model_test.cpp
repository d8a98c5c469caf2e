// What sources make of the model, shown a line an entry: "KIND NAME<brief>{documentation}
// [declaration]", empty parts left out, line feeds as "/" and marks as "^". Methods follow
// their class.
#include <algorithm>
#include <string>
#include <string_view>

#include "addon/html/source_reader.h"
#include "doctest.h"
#include "tests/foundation/recorded_boxes.h"

namespace kesto {

namespace {

std::string part(const char* open, const String& text, const char* close) {
  std::string shown(text.view());
  std::replace(shown.begin(), shown.end(), '\n', '/');
  std::replace(shown.begin(), shown.end(), kMarkedLine, '^');
  return shown.empty() ? "" : open + shown + close;
}

std::string shown(const char* kind, const htSymbol& entry) {
  return std::string(kind) + ' ' + entry.name.text() + part("<", entry.brief, ">") +
         part("{", entry.documentation, "}") + part("[", entry.declaration, "]") + '\n';
}

// Classes, functions, macros, then the file comment if there is one.
std::string model(std::string_view source) {
  htProjet projet("C:\\P", "*.h", "P");
  htFile& file = projet.addFile("C:\\P\\a.h");
  CHECK(SourceReader(projet, file).read(source));
  std::string all;
  for (int i = 0; i < projet.classes.count(); ++i) {
    all += shown("C", *projet.classes[i]);
    for (int m = 0; m < projet.classes[i]->methods.count(); ++m) {
      all += shown("M", *projet.classes[i]->methods[m]);
    }
  }
  for (int i = 0; i < projet.functions.count(); ++i) {
    all += shown("F", *projet.functions[i]);
  }
  for (int i = 0; i < projet.macros.count(); ++i) {
    all += shown("D", *projet.macros[i]);
  }
  return file.hasDocumentation() ? all + shown("file", file) : all;
}

struct Case {
  const char* source;
  const char* expected;
};

template <std::size_t count>
void check(const Case (&cases)[count]) {
  for (const Case& c : cases) {
    CAPTURE(std::string(c.source));
    CHECK(model(c.source) == c.expected);
  }
}

}  // namespace

TEST_CASE("documentation headers") {
  check({
      {"/** ::Parser Reads the source\n", "C Parser<Reads the source>\n"},
      {"/** ::P", "C P\n"},
      {"/** ::", ""},
      {"/** :: Parser x", "C <Parser x>\n"},
      {"/** ::A -- b\n*/\n/** ::A\n*/\n", "C A\n"},  // the later brief holds
      {"/** A::f x\n", "C A\nM f\n"},
      {"/** A::bcd", "C A\nM bcd\n"},  // ten characters
      {"/** A::bc", "F A<::bc>\n"},    // nine: no method yet
      {"/** int A::~A", "C int A\nM \n"},
      {"/** A::B::f", "C A\nM B\n"},
      {"/** f See a::b", "C f See a\nM b\n"},
      {"/** #MAX The most", "D MAX< The most>\n"},
      {"/** #MA", "D MA\n"},
      {"/** #M", ""},
      {"/** f(int) brief\t \r\n", "F f<(int) brief\t >\n"},
      {"/** f-g", "F f<-g>\n"},
      {"/**  fg", "F < fg>\n"},
      {"/** fg", ""},
      {" /** fgh", ""},
      {"/**\nof the file\n*/\n/**\nand more\n*/\n", "file a.h{of the file/and more/}\n"},
      {"/** \nx\n", ""},
      {"/* plain\n/** f doc\nx\n*/\n", "F f< doc>{x/}\n"},
  });
}

TEST_CASE("comment lines") {
  check({
      {"/** fn1\na~\n\n// hidden\n // shown\n~\nb", "F fn1{a^// // shown/^/b/}\n"},
      {"/** fn1\n/** fn2\nx */ y\n/** fn3\n*/", "F fn1{/** fn2/}\nF fn3\n"},
      {"/** fn1 one line */\n#define AB 1\n*/\n#define CD 2\n",
       "F fn1< one line */>{#define AB 1/}\nD CD[#define CD 2/]\n"},
      {"/** fn1\n*/\n/** fn1\nx\n*/\n/** fn1\ny\n*/\n", "F fn1{x/}\nF fn1{y/}\n"},
      {"/** fn1\na\x03"
       "b \x01\t\r\n//~\n*/",
       "F fn1{a^b /}\n"},
  });
}

TEST_CASE("declarations") {
  check({
      {"class Foo;\nint x;\n\n };\n}x\nclass Bar",
       "C Foo[class Foo;/int x;// };/}x/]\nC Bar[class Bar/]\n"},
      {"class X", "C X[class X/]\n"},
      {"class;", ""},
      {"CLASS  (Foo)\n", "C Foo[CLASS  (Foo)/]\n"},
      {"class A CLASS B", "C B[class A CLASS B/]\n"},
      {"CLASS A class B", "C B[CLASS A class B/]\n"},
      {"class A classB", ""},
      {"friend class", "C [friend class/]\n"},
      {"class Foo \\\n", ""},
      {" class Foo\n", ""},
      {"_class_ class __export Foo", "C __export[_class_ class __export Foo/]\n"},
      {"int subclass(int n)", "C int[int subclass(int n)/]\n"},
      {"CALCUL_INT compute(int n)\nint main(int argc)", "F compute[CALCUL_INT compute(int n)/]\n"},
      {"CALCUL_INT compute (f(2))", "F [CALCUL_INT compute (f(2))/]\n"},
      {"CALCUL_INT compute(int n);\n CALCUL_INT f()\nCALCUL_X", ""},
      {"CALCUL_INT A::f(int n)", "C A\nM f[CALCUL_INT f(int n)/]\n"},
      {"A::f()", "C A\nM f[f()/]\n"},
      {"void * A::operator ()(B::C b)", "C A\nM operator [void * operator ()(B::C b)/]\n"},
      {"int A::~A()\nint A::g() const\n~A::h()", "C A\nM ~A[int ~A()/]\n"},
      {"void draw(std::string s)", "C std\nM string s)[void draw(string s)/]\n"},
      {"void f(A ::g())", "C \nM g[void f(A g())/]\n"},
      {"#define AB 1", "D AB[#define AB 1/]\n"},
      {"#define GUARD_H\n#define GUARD_H\r\n#define A\n#define\tA\n#define ()\n# define A B\n", ""},
      {"#define A ", "D A[#define A /]\n"},
      {"#define  A(x) \\\n  x \\\n\n#define B c\\",
       "D A[#define  A(x) \\/  x \\//]\nD B[#define B c\\/]\n"},
      {"#define A\\\nb\nclass Foo\n", "C Foo[class Foo/]\nD A[#define A\\/b/]\n"},
  });
}

TEST_CASE("a plain comment hides declarations") {
  const std::string all = "class Foo\n}\nCALCUL_I f()\nint A::g()\n#define AB 1\n";
  const std::string found =
      "C Foo[class Foo/}/]\nC A\nM g[int g()/]\nF f[CALCUL_I f()/]\nD AB[#define AB 1/]\n";
  const struct {
    std::string around;
    bool hidden;
  } cases[] = {
      {"x /* y\n", true},        {"/* y */\n", false}, {"/*/\n", false},   {"/* x\n y */\n", false},
      {"/* x */ /* y\n", false}, {"*/ /* x\n", false}, {"/*\n/*\n", true},
  };
  for (const auto& c : cases) {
    CAPTURE(c.around);
    CHECK(model(c.around + all) == (c.hidden ? "" : found));
  }
}

TEST_CASE("comments and definitions of a name pair up in order") {
  check({
      {"int S::push(int)\nint S::push(char*)\n/** S::push\na\n*/\n/** S::push\nb\n*/\n"
       "/** S::push\nc\n*/\n",
       "C S\nM push{a/}[int push(int)/]\nM push{b/}[int push(char*)/]\nM push{c/}\n"},
      {"/** fn1\na\n*/\n/** fn1\nb\n*/\nCALCUL_ fn1(1)\nCALCUL_ fn1(2)\nCALCUL_ fn1(3)\n",
       "F fn1{a/}[CALCUL_ fn1(1)/]\nF fn1{b/}[CALCUL_ fn1(2)/]\nF fn1[CALCUL_ fn1(3)/]\n"},
      {"#define AB 1\n#define AB 2\n/** #AB\na\n*/\n",
       "D AB{a/}[#define AB 1/]\nD AB[#define AB 2/]\n"},
      {"class AB\n}\nclass AB\n}\n/** ::AB\na\n*/\n/** ::AB\nb\n*/\n",
       "C AB{a/b/}[class AB/}/class AB/}/]\n"},
  });
}

TEST_CASE("each kind of request finds the first entry that suits it") {
  htProjet projet("C:\\P", "*.h", "P");
  htFile& first = projet.addFile("C:\\P\\b.h");
  htClass& of = projet.findOrAddClass("A", first);
  htSymbol& declared = projet.findOrAddMethod(of, "f", EntryKind::kBothEmpty);
  declared.declaration = "x";
  htSymbol& documented = projet.findOrAddMethod(of, "f", EntryKind::kBothEmpty);
  documented.documentation = "y";
  CHECK(&projet.findOrAddMethod(of, "f", EntryKind::kAny) == &declared);
  CHECK(&projet.findOrAddMethod(of, "f", EntryKind::kDocumentation) == &declared);
  CHECK(&projet.findOrAddMethod(of, "f", EntryKind::kDeclaration) == &documented);
  const htSymbol& empty = projet.findOrAddMethod(of, "f", EntryKind::kBothEmpty);
  CHECK(&empty == of.methods[2]);

  // Files list what they saw first; classes are listed by each file once.
  htSymbol& function = projet.findOrAddFunction("z", first, EntryKind::kAny);
  htFile& second = projet.addFile("C:\\P\\sub\\a.h");
  for (int i = 0; i < 2; ++i) {
    CHECK(&projet.findOrAddClass("A", second) == &of);
    CHECK(&projet.findOrAddFunction("z", second, EntryKind::kAny) == &function);
  }
  projet.findOrAddFunction("\xE9", second, EntryKind::kAny);
  projet.findOrAddFunction("Z", second, EntryKind::kAny);
  CHECK(second.classes.count() == 1);
  CHECK(first.functions.count() == 1);
  CHECK(second.functions.count() == 2);

  projet.sort();  // bytes count as unsigned
  CHECK(projet.files[0] == &second);
  CHECK(projet.functions[0]->name == "Z");
  CHECK(projet.functions[1] == &function);
  CHECK(projet.functions[2]->name == "\xE9");
  REQUIRE(of.listed_in.size() == 2);
  CHECK(of.listed_in[0] == &second);
}

TEST_CASE("no source is too much") {
  std::string macros;
  for (int i = 0; i < 100000; ++i) {
    macros += "/** #AB\nx\n*/\n#define AB 1\n";
  }
  std::string body = "class Foo\n";
  for (int i = 0; i < 50000; ++i) {
    body += "int member;\n";
  }
  htProjet projet("C:\\P", "*.h", "P");
  htFile& file = projet.addFile("C:\\P\\a.h");
  CHECK(SourceReader(projet, file).read(macros));
  CHECK(projet.macros.count() == 100000);
  CHECK(projet.macros[99999]->number == 99999);
  CHECK(projet.macros[99999]->hasDocumentation());
  CHECK(SourceReader(projet, file).read(body));
  CHECK(projet.classes[0]->declaration.length() == String::kMaxLength);
  std::string line = "#define ";
  line.resize(10000000, 'a');
  CHECK(SourceReader(projet, file).read(line));
  CHECK(SourceReader(projet, file).read({"#define AC \0x\n#define AD\0 1\n", 28}));
  CHECK(projet.macros.count() == 100001);
  CHECK(takeBoxes().empty());
}

}  // namespace kesto
