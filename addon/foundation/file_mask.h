// Masks of file names, as the system's searches take them. "*" stands for any
// characters; a "." before a "*" also stands for the end of a name without one, so that
// "main.*" fits "main". The letters a to z fit in either case.
//
// What else a mask may hold means different things to different systems: "?", dots in a
// row, a dot or a blank at the end, letters beyond a to z. Such a mask is not plain, and
// the system is asked what fits it.
#pragma once

#include <string>
#include <string_view>

namespace kesto {

class FileMask {
 public:
  // As it stands between two ";".
  explicit FileMask(std::string_view mask) : mask_(mask) {}

  const std::string& text() const { return mask_; }
  bool plain() const;
  // Only for a plain mask. The system tries a file's long name and its short one.
  bool fits(std::string_view name) const;

 private:
  std::string mask_;
};

}  // namespace kesto
