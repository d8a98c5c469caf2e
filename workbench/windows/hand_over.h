// How a path reaches a Workbench that runs already: by WM_COPYDATA, as text with a closing
// zero; the empty one only asks it to come forward. It answers TRUE when it takes it. Plain
// values.
#pragma once

namespace workbench {

inline constexpr unsigned long kHandOver = 0x4B4F5045;

}  // namespace workbench
