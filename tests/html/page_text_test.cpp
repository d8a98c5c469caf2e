#include "addon/html/page_text.h"

#include <string>

#include "doctest.h"

namespace kesto {

namespace {

// Class Stack (and a function of that name), macro MAX (and a function of that name),
// functions sum, twice.
class Links {
 public:
  Links() : projet_("C:\\P", "*.h", "P") {
    htFile& file = projet_.addFile("C:\\P\\a.h");
    projet_.findOrAddClass("Stack", file);
    projet_.findOrAddMacro("MAX", file, EntryKind::kAny);
    for (const char* name : {"Stack", "MAX", "sum", ""}) {
      projet_.findOrAddFunction(name, file, EntryKind::kAny);
    }
    projet_.functions[2]->declaration = "sum";
    projet_.findOrAddFunction("sum", file, EntryKind::kDeclaration);
    projet_.sort();
  }
  WordLinks get() const { return WordLinks(projet_); }

 private:
  htProjet projet_;
};

const std::string kStackLink = "<a href =\"Class Stack.html\" target=\"space\">Stack</a>";
const std::string kMaxLink = "<a href =\"Define MAX 0.html\" target=\"space\">MAX</a>";
const std::string kSumLink = "<a href =\"Fnc sum 0.html\" target=\"space\">sum</a>";
const std::string kParameters = "<br><br><B>Param\xE8tres :</B><br>\n";
const std::string kNoProse = "<I>Pas de documentation disponible !</I><br>";

}  // namespace

TEST_CASE("prose") {
  const Links model;
  const WordLinks links = model.get();
  const struct {
    const char* text;
    std::string expected_short;
    std::string expected_long;  // empty: as the short form
  } cases[] = {
      {"a < b > c & \"d\" '\xE9';", "a &#60 b &#62 c &#38 &#34d&#34 '\xE9';", ""},
      {"Stack MAX sum other", kStackLink + " " + kMaxLink + " " + kSumLink + " other", ""},
      {"self selfish Stacks \xE9MAX", "self selfish Stacks \xE9" + kMaxLink, ""},
      {"a/b // c // Stack\nd // e", "a/b <I>// c // " + kStackLink + "</I>\nd <I>// e", ""},
      {"/// x\x03\n//\n", "<I>/// x<br>\n</I>\n<I>//</I>\n", ""},
      {"one\x03\ntwo\n", "one<br>\n\ntwo\n", ""},
      {"\xA7n \xA7MAX.", "<br><I><CODE>n</CODE></I> <br><I><CODE>" + kMaxLink + "</CODE></I>.",
       kParameters + "<br><I><CODE>n</CODE></I> <br><I><CODE>" + kMaxLink + "</CODE></I>."},
      {"\xA7\xA7sum, \xA7\xA7 x",
       "<br><U><I>Retour</I></U> : " + kSumLink + ", <br><U><I>Retour</I></U> :  x",
       "<br><br><B>Retour :</B><br><br>\n" + kSumLink + ", <br><br><B>Retour :</B><br><br>\n x"},
      {"\xA7\xA7\xA7n", "<br><U><I>Retour</I></U> : <br><I><CODE>n</CODE></I>",
       "<br><br><B>Retour :</B><br><br>\n" + kParameters + "<br><I><CODE>n</CODE></I>"},
      {"x\xA7", "x<br><I><CODE></CODE></I>", "x" + kParameters + "<br><I><CODE></CODE></I>"},
      {"public class", "public class", ""},
  };
  for (const auto& c : cases) {
    CAPTURE(std::string(c.text));
    std::string page = "[";
    appendProse(page, c.text, links, "self");
    CHECK(page == "[" + c.expected_short + "</pre>\n");
    page.clear();
    appendProse(page, c.text, links, "self", ProseForm::kLong);
    CHECK(page == (c.expected_long.empty() ? c.expected_short : c.expected_long) + "</pre>\n");
  }
  std::string page;
  appendProse(page, "", links, "self");
  appendProse(page, "Stack sum", links, "Stack");
  CHECK(page == kNoProse + "Stack " + kSumLink + "</pre>\n");
}

TEST_CASE("code") {
  const Links model;
  const WordLinks links = model.get();
  std::string all = "public private protected virtual static friend const operator class CLASS ";
  all += "template __export export _export _import __import extern";
  std::string bold = "<b>" + all + "</b>";
  for (std::size_t at = 0; (at = bold.find(' ', at)) != std::string::npos; at += 8) {
    bold.replace(at, 1, "</b> <b>");
  }
  const struct {
    std::string text;
    std::string expected;
  } cases[] = {
      {all, bold},
      {"Public classes import", "Public classes import"},
      {"\xA7n & Stack<sum>(\"x\"); // MAX\nself", "\xA7n &#38 " + kStackLink + "&#60" + kSumLink +
                                                      "&#62(&#34x&#34); <I>// " + kMaxLink +
                                                      "</I>\nself"},
  };
  for (const auto& c : cases) {
    std::string page;
    appendCode(page, c.text, links, "self");
    CHECK(page == "<pre>" + c.expected + "</pre>\n");
  }
  std::string page;
  appendCode(page, "", links, "self");
  CHECK(page == "<I><pre>Pas de code disponible !</I></pre><br>");
}

}  // namespace kesto
