// Paths as the system completes them. Any thread, but a relative path depends on the
// process's current directory.
#pragma once

#include <string>
#include <string_view>

namespace kesto {

// The path with its drive and its directories, without "." and "..", separated by "\".
// What the system cannot complete stays as it is.
std::string fullPath(std::string_view path);

}  // namespace kesto
