#include "addon/rcgen/rc_reader.h"

#include <algorithm>

#include "addon/foundation/text_file.h"
#include "addon/rcgen/rc_fields.h"

namespace kesto {

namespace {

// The buffer of a line, its terminating zero included.
constexpr std::size_t kLineBuffer = 1023;

constexpr std::string_view kDefine = "#define";
constexpr std::size_t kDefineName = 8;  // where the name is looked for
constexpr std::size_t kDialogMenuName = 5;
constexpr std::size_t kSymbolSize = 2;  // of the "ID" in "IDOK"

bool closesBlock(std::string_view line) {
  return line.starts_with('}');
}

bool isStandardButton(std::string_view identifier) {
  return identifier == "IDOK" || identifier == "IDCANCEL" || identifier == "IDHELP";
}

// A number, a sign, a quote, or nothing at all.
bool isNoName(std::string_view identifier) {
  return identifier.empty() || static_cast<unsigned char>(identifier.front()) <= '9';
}

// The lines of a script without their ends, one at a time: a list of them can be longer
// than the script.
class ScriptLines {
 public:
  explicit ScriptLines(std::string_view script) : lines_(script, kLineBuffer) {}

  bool next(std::string_view& line) {
    const bool more = lines_.next(line);
    line = withoutLineEnd(line);
    return more;
  }

 private:
  TextLines lines_;
};

}  // namespace

void RcReader::read(std::string_view script, DialogEmitter& emitter) {
  readDefines(script);
  readMenus(script);
  emitter.menuMacros(menu_items_.entries());
  readDialogs(script, emitter);
}

void RcReader::readDefines(std::string_view script) {
  defines_.clear();
  defines_by_name_.clear();
  ScriptLines lines(script);
  for (std::string_view line; lines.next(line);) {
    if (!line.starts_with(kDefine)) {
      continue;
    }
    RcDefine* const define = defines_.add();
    if (define == nullptr) {
      return;
    }
    const RcToken name = rcToken(line, kDefineName);
    define->name.assign(name.text);
    define->value.assign(rcToken(line, name.end).text);
    const RcDefine*& first = defines_by_name_[define->name.view()];
    if (first == nullptr) {
      first = define;
    }
  }
}

const RcDefine* RcReader::findDefine(std::string_view name) const {
  const RcDefine* const* const found = defines_by_name_.find(name);
  return found != nullptr ? *found : nullptr;
}

void RcReader::readMenus(std::string_view script) {
  menu_items_.clear();
  bool inside = false;
  std::string_view menu;
  ScriptLines lines(script);
  for (std::string_view line; lines.next(line);) {
    if (!inside) {
      inside = holdsAfterBlank(line, "MENU");
      if (inside) {
        menu = rcToken(line).text;
      }
    } else if (closesBlock(line)) {
      inside = false;
    } else if (rcToken(line).text == "MENUITEM") {
      readMenuItem(line, menu);
    }
  }
}

void RcReader::readMenuItem(std::string_view line, std::string_view menu) {
  const std::string_view identifier = rcCommaFields(line)[1];
  // A line that defines nothing has an empty name; separators have no identifier.
  const RcDefine* const define = identifier.empty() ? nullptr : findDefine(identifier);
  RcMenuItem* const item = define != nullptr ? menu_items_.add() : nullptr;
  if (item != nullptr) {
    item->member.assign(rcMemberName(identifier));
    item->menu.assign(menu);
    item->code.assign(define->value.view());
  }
}

void RcReader::readDialogs(std::string_view script, DialogEmitter& emitter) {
  bool inside = false;
  ScriptLines lines(script);
  for (std::string_view line; lines.next(line);) {
    if (!inside) {
      inside = openDialog(line, emitter);
    } else if (!readDialogLine(line)) {
      emitter.closeDialog(dialog_, menu_items_.entries());
      inside = false;
    }
  }
}

bool RcReader::openDialog(std::string_view line, DialogEmitter& emitter) {
  if (!holdsAfterBlank(line, "DIALOG", " ") && !holdsAfterBlank(line, "DIALOG", "EX ")) {
    return false;
  }
  const std::string_view name = rcToken(line).text;
  if (isLanguageVariant(name)) {
    return false;
  }
  dialog_.name.assign(name);
  dialog_.menu.assign({});
  dialog_.controls.clear();
  emitter.openDialog(dialog_.name.view());
  return true;
}

bool RcReader::readDialogLine(std::string_view line) {
  if (closesBlock(line)) {
    return false;
  }
  const std::string_view word = rcToken(line).text;
  if (word == "MENU") {
    // The statement is taken to start the line, with one blank after the word.
    dialog_.menu.assign(line.size() > kDialogMenuName ? line.substr(kDialogMenuName) : "");
  } else if (word == "CONTROL") {
    readControl(line);
  }
  return true;
}

// The word CONTROL holds neither comma nor quote: its line has the fields of what follows.
void RcReader::readControl(std::string_view line) {
  const auto [text, identifier, window_class, style] = rcCommaFields(line);
  const std::string_view framework_class = rcFrameworkClass(window_class, style);
  if (framework_class.empty() || isNoName(identifier)) {
    return;
  }
  std::string_view id = identifier;
  std::string_view member = identifier.substr(std::min(kSymbolSize, identifier.size()));
  if (!isStandardButton(identifier)) {
    const RcDefine* const define = findDefine(identifier);
    if (define == nullptr) {
      return;
    }
    id = define->value.view();
    member = rcMemberName(identifier);
  }
  if (RcControl* const control = dialog_.controls.add()) {
    control->member.assign(member);
    control->id.assign(id);
    control->framework_class.assign(framework_class);
  }
}

}  // namespace kesto
