// What one resource script defines, in fields and tables of fixed capacity: a text is
// cut at its field's width, and a full table takes no more entries. Values; any thread.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace kesto {

// At most kWidth characters, which hold no zero byte.
template <std::size_t kWidth>
class RcField {
 public:
  void assign(std::string_view text) {
    text = text.substr(0, kWidth);
    std::copy(text.begin(), text.end(), text_.begin());
    size_ = static_cast<std::uint8_t>(text.size());
  }
  std::string_view view() const { return {text_.data(), size_}; }

 private:
  static_assert(kWidth <= UINT8_MAX);
  std::array<char, kWidth> text_;
  std::uint8_t size_ = 0;
};

inline constexpr std::size_t kRcTableLimit = 255;

template <class Entry>
class RcTable {
 public:
  void clear() { count_ = 0; }
  // The next entry, for the caller to fill in whole; null when the table is full.
  Entry* add() { return count_ < kRcTableLimit ? &entries_[count_++] : nullptr; }
  std::span<const Entry> entries() const { return {entries_.data(), count_}; }

 private:
  std::array<Entry, kRcTableLimit> entries_;
  std::size_t count_ = 0;
};

inline constexpr std::size_t kMenuNameWidth = 49;

// A "#define" line.
struct RcDefine {
  RcField<69> name;
  RcField<49> value;  // as text
};

struct RcMenuItem {
  RcField<49> member;
  RcField<kMenuNameWidth> menu;
  RcField<49> code;  // the value text of the item's identifier
};

struct RcControl {
  RcField<79> member;
  RcField<39> id;  // "IDOK", "IDCANCEL", "IDHELP", or the value text of the identifier
  RcField<39> framework_class;
};

struct RcDialog {
  RcField<79> name;
  RcField<kMenuNameWidth> menu;  // empty: it has none
  RcTable<RcControl> controls;
};

inline constexpr std::string_view kTabControlClass = "TabControl";
inline constexpr std::string_view kTreeViewClass = "TreeView";
inline constexpr std::string_view kListViewClass = "ListView";

// Controls that tell what happens by WM_NOTIFY; all others do it by WM_COMMAND.
inline bool isNotificationControl(const RcControl& control) {
  const std::string_view name = control.framework_class.view();
  return name == kTabControlClass || name == kTreeViewClass || name == kListViewClass;
}

}  // namespace kesto
