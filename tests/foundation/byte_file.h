// A temporary binary file for the tests, gone with the object.
#pragma once

#include <cstdio>
#include <string>

namespace kesto {

class ByteFile {
 public:
  explicit ByteFile(const std::string& bytes = {}) : file_(tmpfile()) {
    fwrite(bytes.data(), 1, bytes.size(), file_);
    rewind(file_);
  }
  ByteFile(const ByteFile&) = delete;
  ByteFile& operator=(const ByteFile&) = delete;
  ~ByteFile() { fclose(file_); }

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
  FILE* file_;
};

}  // namespace kesto
