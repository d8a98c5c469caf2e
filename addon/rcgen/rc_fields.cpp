#include "addon/rcgen/rc_fields.h"

#include <algorithm>

#include "addon/rcgen/rc_tables.h"

namespace kesto {

namespace {

constexpr std::size_t kPrefixSize = 4;
constexpr std::size_t kLanguageSize = 5;
constexpr char kBackspace = 8;

struct ClassRow {
  std::string_view window_class;
  std::string_view upper;
  std::string_view framework_class;
};

constexpr ClassRow kClasses[] = {
    {"edit", "EDIT", "Edit"},
    {"listbox", "LISTBOX", "List"},
    {"combobox", "COMBOBOX", "ComboBox"},
    {"SysListView32", "SYSLISTVIEW32", kListViewClass},
    {"msctls_statusbar32", "MSCTLS_STATUSBAR32", "StatusBar"},
    {"ToolbarWindow32", "TOOLBARWINDOW32", "ToolBar"},
    {"msctls_progress32", "MSCTLS_PROGRESS32", "Progress"},
    {"msctls_trackbar32", "MSCTLS_TRACKBAR32", "TrackBar"},
    {"SysTabControl32", "SYSTABCONTROL32", kTabControlClass},
    {"SysTreeView32", "SYSTREEVIEW32", kTreeViewClass},
};

constexpr std::string_view kCheckBoxStyles[] = {"BS_3STATE", "BS_AUTO3STATE", "BS_CHECKBOX",
                                                "BS_AUTOCHECKBOX"};
constexpr std::string_view kRadioStyles[] = {"BS_RADIOBUTTON", "BS_AUTORADIOBUTTON"};

bool isAboveBlank(char c) {
  return static_cast<unsigned char>(c) > ' ';
}

// The place of the next comma outside quotes, else the line's end.
std::size_t fieldEnd(std::string_view line, std::size_t from) {
  bool quoted = false;
  std::size_t at = from;
  for (; at < line.size() && (quoted || line[at] != ','); ++at) {
    quoted = quoted != (line[at] == '"');
  }
  return at;
}

std::string_view fieldValue(std::string_view field) {
  while (!field.empty() && (field.front() == ' ' || field.front() == kBackspace)) {
    field.remove_prefix(1);
  }
  if (field.empty() || field.front() != '"') {
    return field;
  }
  field.remove_prefix(1);
  const std::size_t last = field.rfind('"');
  return last == std::string_view::npos ? std::string_view() : field.substr(0, last);
}

template <std::size_t kCount>
bool holdsAny(std::string_view style, const std::string_view (&words)[kCount]) {
  return std::any_of(std::begin(words), std::end(words), [style](std::string_view word) {
    return style.find(word) != std::string_view::npos;
  });
}

std::string_view buttonClass(std::string_view style) {
  if (holdsAny(style, kCheckBoxStyles)) {
    return "CheckBox";
  }
  return holdsAny(style, kRadioStyles) ? "Radio" : "Control";
}

}  // namespace

RcToken rcToken(std::string_view line, std::size_t from) {
  std::size_t begin = std::min(from, line.size());
  while (begin < line.size() && (line[begin] == ' ' || line[begin] == '\t')) {
    ++begin;
  }
  std::size_t end = begin;
  while (end < line.size() && isAboveBlank(line[end])) {
    ++end;
  }
  return {line.substr(begin, end - begin), end};
}

RcFields rcCommaFields(std::string_view line) {
  RcFields fields;
  std::size_t begin = 0;
  for (std::string_view& field : fields) {
    const std::size_t end = fieldEnd(line, begin);
    field = fieldValue(line.substr(begin, end - begin));
    if (end == line.size()) {
      break;
    }
    begin = end + 1;
  }
  return fields;
}

// Sought by the word: blanks are everywhere.
bool holdsAfterBlank(std::string_view line, std::string_view word, std::string_view ending) {
  for (std::size_t at = 0; (at = line.find(word, at)) != std::string_view::npos; ++at) {
    if (at > 0 && line[at - 1] == ' ' && line.substr(at + word.size()).starts_with(ending)) {
      return true;
    }
  }
  return false;
}

std::string_view rcMemberName(std::string_view identifier) {
  return identifier.size() > kPrefixSize && identifier[kPrefixSize - 1] == '_'
             ? identifier.substr(kPrefixSize)
             : identifier;
}

bool isLanguageVariant(std::string_view dialog) {
  if (dialog.size() <= kLanguageSize || dialog[dialog.size() - kLanguageSize] != '_') {
    return false;
  }
  const char before_last = dialog[dialog.size() - 2];
  return before_last >= '0' && before_last <= '9';
}

std::string_view rcFrameworkClass(std::string_view window_class, std::string_view style) {
  if (window_class == "button" || window_class == "BUTTON") {
    return buttonClass(style);
  }
  for (const ClassRow& row : kClasses) {
    if (window_class == row.window_class || window_class == row.upper) {
      return row.framework_class;
    }
  }
  return {};
}

}  // namespace kesto
