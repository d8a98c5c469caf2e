// QuickResu: one hit of a search that collects several.
#pragma once

#include <cstdint>
#include <string_view>

#include "addon/foundation/basic.h"
#include "addon/foundation/string.h"

namespace kesto {

class QuickResu : public Basic {
 public:
  static constexpr long kSmallestRecord = 4 + 2 * String::kSmallestRecord;

  QuickResu() = default;
  // The line counts from 1; file is a full path; text is what a list shows.
  QuickResu(int line, std::string_view file, std::string_view text)
      : line_(line), file_(file), text_(text) {}

  int line() const { return line_; }
  const String& file() const { return file_; }
  const String& text() const { return text_; }

  // The file form: line (signed 32 bits), file, text. 1 on success, 0 on failure.
  int fWrite(FILE* file) const override;
  int fRead(FILE* file) override;
  operator char*() const override { return text_; }

 private:
  std::int32_t line_ = 0;
  String file_;
  String text_;
};

}  // namespace kesto
