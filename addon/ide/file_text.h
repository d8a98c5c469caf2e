// The text of a file as the IDE holds it, an editor's unsaved changes included.
// FileText owns its bytes. User-interface thread only.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace kesto {

class FileText {
 public:
  FileText() = default;
  FileText(std::unique_ptr<char[]> text, long length) : text_(std::move(text)), length_(length) {}

  // Bytes of the text; zero-terminated at length.
  const char* data() const { return text_ ? text_.get() : ""; }
  long length() const { return length_; }
  std::string_view view() const { return {data(), static_cast<size_t>(length_)}; }

 private:
  std::unique_ptr<char[]> text_;
  long length_ = 0;
};

// Reads the whole file through the IDE's file stream. A file that cannot be
// read, or that memory cannot hold, gives an empty text.
FileText readFileText(const char* file);

}  // namespace kesto
