// What the system tells of a file or directory by its name alone. Any thread.
#pragma once

#include <cstdint>
#include <optional>

namespace kesto {

struct FileDetails {
  std::uint64_t size = 0;     // bytes, 0 for a directory
  std::int64_t modified = 0;  // last written, in the system's ticks of 100 ns
  bool directory = false;
};

// Nothing when neither is there.
std::optional<FileDetails> fileDetails(const char* path);

}  // namespace kesto
