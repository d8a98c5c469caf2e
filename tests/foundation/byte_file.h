// A binary file in the current directory for the tests, gone with the object. The
// system's own temporary files would lie outside the build tree.
#pragma once

#include <cstdio>
#include <string>

#include "doctest.h"

namespace kesto {

class ByteFile {
 public:
  explicit ByteFile(const std::string& bytes = {})
      : name_("bytes" + std::to_string(made++) + ".tmp"), file_(fopen(name_.c_str(), "w+b")) {
    REQUIRE(file_ != nullptr);
    fwrite(bytes.data(), 1, bytes.size(), file_);
    rewind(file_);
  }
  ByteFile(const ByteFile&) = delete;
  ByteFile& operator=(const ByteFile&) = delete;
  ~ByteFile() {
    fclose(file_);
    remove(name_.c_str());
  }

  FILE* get() const { return file_; }
  std::string bytes() const {
    std::string all;
    rewind(file_);
    for (int c = getc(file_); c != EOF; c = getc(file_)) {
      all += static_cast<char>(c);
    }
    return all;
  }

 private:
  inline static int made = 0;
  std::string name_;
  FILE* file_;
};

}  // namespace kesto
