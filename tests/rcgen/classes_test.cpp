// The classes made of resource scripts; whole units are compared by scenarios.
#include <memory>
#include <string>

#include "addon/rcgen/rc_fields.h"
#include "addon/rcgen/rc_reader.h"
#include "doctest.h"
#include "tests/rcgen/text_count.h"

namespace kesto {

namespace {

struct Texts {
  std::string header;
  std::string implementation;
};

Texts textsOf(const std::string& script) {
  Texts texts;
  DialogEmitter emitter(texts.header, texts.implementation);
  std::make_unique<RcReader>()->read(script, emitter);
  return texts;
}

std::string many(int n, const std::string& before, const std::string& after) {
  std::string all;
  for (int i = 0; i < n; ++i) {
    ((all += before) += std::to_string(i)) += after;
  }
  return all;
}

}  // namespace

TEST_CASE("fields of a line") {
  struct Row {
    std::string_view line;
    std::size_t n;
    std::string_view field;
  };
  const Row rows[] = {
      {"", 0, ""},
      {"a", 1, ""},
      {"a,", 1, ""},
      {"a,b", 1, "b"},
      {"a, \b b ,c", 1, "b "},
      {"a,\tb", 1, "\tb"},
      {"a,\"b,c\",d", 2, "d"},
      {"a, \"b\" \"c\" x,d", 1, "b\" \"c"},
      {"a,\"", 1, ""},
      {"a,\"b,c", 1, ""},
      {"a,b \"c\"", 1, "b \"c\""},
      {"\"a\"\",\",\"b\",c", 1, "b"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.line);
    CHECK(rcCommaFields(row.line)[row.n] == row.field);
  }
}

TEST_CASE("the framework's classes") {
  const struct {
    const char *lower, *upper, *framework_class;
  } rows[] = {
      {"button", "BUTTON", "Control"},
      {"edit", "EDIT", "Edit"},
      {"listbox", "LISTBOX", "List"},
      {"combobox", "COMBOBOX", "ComboBox"},
      {"SysListView32", "SYSLISTVIEW32", "ListView"},
      {"msctls_statusbar32", "MSCTLS_STATUSBAR32", "StatusBar"},
      {"ToolbarWindow32", "TOOLBARWINDOW32", "ToolBar"},
      {"msctls_progress32", "MSCTLS_PROGRESS32", "Progress"},
      {"msctls_trackbar32", "MSCTLS_TRACKBAR32", "TrackBar"},
      {"SysTabControl32", "SYSTABCONTROL32", "TabControl"},
      {"SysTreeView32", "SYSTREEVIEW32", "TreeView"},
      {"static", "syslistview32", ""},
      {"Button", "scrollbar", ""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.lower);
    CHECK(rcFrameworkClass(row.lower, "0") == row.framework_class);
    CHECK(rcFrameworkClass(row.upper, "0") == row.framework_class);
  }
  const struct {
    const char *style, *framework_class;
  } styles[] = {
      {"BS_3STATE", "CheckBox"},       {"BS_AUTO3STATE", "CheckBox"},
      {"BS_CHECKBOX | 1", "CheckBox"}, {"1 | BS_AUTOCHECKBOX", "CheckBox"},
      {"BS_RADIOBUTTON", "Radio"},     {"BS_AUTORADIOBUTTON", "Radio"},
      {"BS_PUSHBUTTON", "Control"},    {"BS_RADIOBUTTON | BS_3STATE", "CheckBox"},
  };
  for (const auto& row : styles) {
    CAPTURE(row.style);
    CHECK(rcFrameworkClass("BUTTON", row.style) == row.framework_class);
  }
}

TEST_CASE("lines of a dialog") {
  const std::string defines =
      "#include \"resource.h\"\n#define IDC_NAME 101\n#define IDC_NAME 999\n"
      "#define\tCM_CHECK\t103\t/* kept whole */\n#define IDC_ 104\n#define  IDC_A (100+5)\n"
      " #define IDC_LATE 106\n#define IDOK 1\n";
  const struct {
    const char *line, *member, *id;  // no member: the line says nothing
  } rows[] = {
      {" CONTROL \"O, K\", IDOK, \"BUTTON\", BS_DEFPUSHBUTTON | WS_TABSTOP, 1, 1", "Control OK",
       "IDOK"},
      {" CONTROL \"Cancel\", IDCANCEL, \"button\", 0", "Control CANCEL", "IDCANCEL"},
      {" CONTROL \"\", IDHELP, \"button\", 0", "Control HELP", "IDHELP"},
      {" CONTROL \"\", IDHELP , \"button\", 0", "", ""},
      {"\tCONTROL\t\"A \"\"quoted\"\", name\",IDC_NAME,\"edit\",ES_LEFT", "Edit NAME", "101"},
      {" CONTROL \"\", CM_CHECK, \"BUTTON\", BS_CHECKBOX", "CheckBox CM_CHECK", "103"},
      {" CONTROL \"\", IDC_, BUTTON, BS_AUTORADIOBUTTON", "Radio IDC_", "104"},
      {" CONTROL \"\", IDC_A, BUTTON , BS_AUTORADIOBUTTON", "", ""},
      {" CONTROL \"\", \"IDC_A\", \"listbox\", LBS_NOTIFY", "List A", "(100+5)"},
      {" CONTROL \"\", IDC_LATE, \"edit\", 0", "", ""},
      {" CONTROL \"\",\tIDC_NAME, \"edit\", 0", "", ""},
      {" CONTROL \"\", 103, \"edit\", 0", "", ""},
      {" CONTROL \"\", -1, \"edit\", 0", "", ""},
      {" CONTROL \"\", IDC_NAME, \"static\", 0", "", ""},
      {" CONTROL \"open, IDC_NAME, \"edit\", 1", "", ""},
      {" PUSHBUTTON \"Typed\", IDC_NAME, 1, 1", "", ""},
      {"CAPTION \"CONTROL\"", "", ""},
      {" }", "", ""},
      {"BEGIN", "", ""},
      {"END", "", ""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.line);
    const Texts texts = textsOf(defines + "D DIALOG 1\n{\n" + row.line + "\n}\n");
    const std::string member = row.member;
    const std::string name = member.substr(member.find(' ') + 1);
    CHECK(count(texts.header, "{\n  public :\n" + (member.empty() ? "" : "    " + member + " ;\n") +
                                  "  public :\n") == 1);
    CHECK(texts.implementation.starts_with(
        "void rcD::rcInit()\n{\n" +
        (member.empty() ? "" : "  " + name + ".Get(this, " + row.id + ") ;\n") + "}\n"));
  }
}

TEST_CASE("dialogs that are none, or have no end") {
  const Texts texts = textsOf(
      "FIND_1033 DIALOG 0\n{\n}\nFIND DIALOGEX\n{\n}\nLOST DIALOGEX 0\n CONTROL \"\", IDOK, "
      "edit\n");
  CHECK(texts.header == "\n\n\n\n\n/*\nLOST()\n*/\nclass rcLOST : public Dialog\n{\n  public :\n");
  CHECK(texts.implementation.empty());
}

TEST_CASE("language variants") {
  for (const char* name : {"MAIN_1033", "A_1036", "A_xx1x", "__xx0\xE9"}) {
    CAPTURE(name);
    CHECK(isLanguageVariant(name));
  }
  for (const char* name : {"MAIN", "_1033", "MAIN_10A3", "MAIN_103", "MAIN_10333", ""}) {
    CAPTURE(name);
    CHECK_FALSE(isLanguageVariant(name));
  }
}

TEST_CASE("a full table takes no more") {
  const std::string defines = many(255, "#define IDC_A", " 7\n") + "#define IDC_LAST 8\n";
  const std::string edit = ", \"edit\", 0\n";
  const std::string script = defines + "M MENU\n" + many(255, "MENUITEM \"\", IDC_A", "\n") +
                             "MENUITEM \"\", IDC_A3\n}\nD DIALOG 1\nMENU M\n" +
                             "CONTROL \"\", IDC_LAST" + edit +
                             many(255, "CONTROL \"\", IDC_A", edit) + "CONTROL \"\", IDOK" + edit +
                             "}\nE DIALOG 1\nCONTROL \"\", IDOK" + edit + "}\n";
  const Texts texts = textsOf(script);
  CHECK(count(texts.header, "virtual void mnu") == 255);
  CHECK(count(texts.header, "virtual int mnu") == 255);  // of the first dialog alone
  CHECK(count(texts.implementation, ".Get(this, 7)") == 255);
  CHECK(count(texts.implementation, ".Get(this, 8)") == 0);
  CHECK(count(texts.implementation, ".Get(this, IDOK)") == 1);
}

TEST_CASE("texts are cut at their fields' widths") {
  const std::string x(200, 'x');
  const std::string d = "IDC_" + std::string(65, 'd');  // as long as a name can be kept
  const std::string script = "#define " + d + " " + x + "\n#define " + x + " 5\n" +  //
                             x + " MENU\nMENUITEM \"\"," + d + "\nMENUITEM \"\"," + x + "\n}\n" +
                             x + "1033_ DIALOG 1\nMENU " + x + "\nCONTROL \"\"," + d +
                             ",\"edit\"\nCONTROL \"\"," + x + ",\"edit\"\n}\n" +  //
                             x + "_1033 DIALOG 1\n}\n";
  const Texts texts = textsOf(script);
  const std::string x39 = x.substr(0, 39);
  const std::string x49 = x.substr(0, 49);
  const std::string x79 = x.substr(0, 79);
  const std::string member(65, 'd');
  CHECK(count(texts.header, "#define CallBar_" + x49 + "() ") == 1);
  CHECK(count(texts.header, "if (code==" + x49 + ") { mnu" + member.substr(0, 49) + "() ;") == 1);
  CHECK(count(texts.header, "class rc" + x79 + " : public") == 1);
  CHECK(count(texts.header, "class ") == 1);
  CHECK(count(texts.header, "    Edit " + member + " ;\n") == 1);
  CHECK(count(texts.header, "    Edit ") == 1);
  CHECK(count(texts.implementation, "  " + member + ".Get(this, " + x39 + ") ;\n") == 1);
  CHECK(count(texts.implementation, "return(mnu" + member.substr(0, 49) + "())") == 1);
}

TEST_CASE("a long line is read in pieces of 1022 characters") {
  const std::string blanks(1022, ' ');
  const Texts texts = textsOf(blanks + "#define IDC_A 1\n" + blanks + "D DIALOG 1\n" + blanks +
                              "CONTROL \"\", IDC_A, \"edit\"\n" + blanks + "}\n");
  CHECK(count(texts.header, "    Edit A ;\n") == 1);
  CHECK(count(texts.header, "} ;\n") == 1);
  CHECK(count(textsOf(blanks + " D DIALOG 1\n" + blanks + " }").header, "} ;\n") == 0);
}

TEST_CASE("odd bytes") {
  using namespace std::string_literals;
  const Texts texts = textsOf(
      "#define \xC9T\xC9 1\n#define IDC_A 2\0 3\nD\x01 DIALOG 1\n"
      "CONTROL \"\", \xC9T\xC9, \"edit\"\nCONTROL \"\", IDC_A, \"edit\"\0\n"
      "CONTROL \"\", IDC_A, \"ed\0it\"\nMENU\n}\r"s);
  CHECK(count(texts.header, "class rcD : ") == 1);
  CHECK(count(texts.header, "    Edit ") == 2);
  CHECK(count(texts.implementation, "\xC9T\xC9.Get(this, 1)") == 1);
  CHECK(count(texts.header, "} ;\n") == 1);

  // A line without a name defines nothing that an item without an identifier could mean.
  CHECK(textsOf("#define\nM MENU\n{\nMENUITEM SEPARATOR\nMENUITEM \"x\", \n}\n").header ==
        "\n\n\n\n");
}

}  // namespace kesto
