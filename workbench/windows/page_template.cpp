#include "workbench/windows/page_template.h"

#include <cstring>

namespace workbench {
namespace {

// The head of an extended template: version 1 and this mark stand before the styles.
constexpr WORD kExtendedMark = 0xFFFF;
constexpr std::size_t kExtendedStyle = 12;  // after version, mark, help id, extended style
constexpr std::size_t kSmallest = 18;       // bytes of the shorter head

}  // namespace

bool childTemplate(HINSTANCE module, int dialog_id, std::vector<char>* data) {
  HRSRC found =
      FindResourceA(module, MAKEINTRESOURCEA(dialog_id), reinterpret_cast<LPCSTR>(RT_DIALOG));
  HGLOBAL loaded = found != nullptr ? LoadResource(module, found) : nullptr;
  const void* bytes = loaded != nullptr ? LockResource(loaded) : nullptr;
  const DWORD size = found != nullptr ? SizeofResource(module, found) : 0;
  if (bytes == nullptr || size < kSmallest) {
    return false;
  }
  data->assign(static_cast<const char*>(bytes), static_cast<const char*>(bytes) + size);
  WORD head[2] = {};
  std::memcpy(head, data->data(), sizeof head);
  const bool extended = head[0] == 1 && head[1] == kExtendedMark;
  const std::size_t place = extended ? kExtendedStyle : 0;
  DWORD style = 0;
  std::memcpy(&style, data->data() + place, sizeof style);
  // The frame's styles go; a caption's text stays in the template, unseen.
  style &= ~static_cast<DWORD>(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_VISIBLE |
                               DS_MODALFRAME | DS_ABSALIGN);
  style |= WS_CHILD | DS_CONTROL;
  std::memcpy(data->data() + place, &style, sizeof style);
  return true;
}

}  // namespace workbench
