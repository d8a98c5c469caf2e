// Texts that several parts of the program show.
#pragma once

namespace workbench {

inline constexpr char kFrameTitle[] = "Borland C++";
// Over message boxes of the program.
inline constexpr char kProgramCaption[] = "Workbench";

}  // namespace workbench
