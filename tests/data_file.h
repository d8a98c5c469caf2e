// The files of the tests' data, byte for byte.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "doctest.h"

namespace tests {

inline std::string contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  CHECK(file.is_open());
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// What differs is left in the build folder, under the expected file's name and ".actual".
inline void checkFile(const std::filesystem::path& expected, const std::string& actual) {
  const bool same = actual == contents(expected);
  CHECK(same);
  if (!same) {
    const std::string name = expected.filename().string() + ".actual";
    std::ofstream(std::filesystem::path(TEST_OUTPUT_DIR) / name, std::ios::binary) << actual;
  }
}

}  // namespace tests
