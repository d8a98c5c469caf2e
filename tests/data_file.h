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

// What differs is left in the build tree as test-output/FILE.actual.
inline void checkFile(const std::filesystem::path& expected, const std::string& actual) {
  const bool same = actual == contents(expected);
  CHECK(same);
  if (!same) {
    std::ofstream(expected.filename().string() + ".actual", std::ios::binary) << actual;
  }
}

}  // namespace tests
