// Fnc: one function or method found in a source file. Owns copies of its texts.
#pragma once

#include <cstdint>
#include <string_view>

#include "addon/foundation/basic.h"

namespace kesto {

class Fnc : public Basic {
 public:
  Fnc() : Fnc({}, {}, 0) {}
  // class_name is empty for a free function; line counts from 1.
  Fnc(std::string_view name, std::string_view class_name, int line);
  Fnc(const Fnc&) = delete;
  Fnc& operator=(const Fnc&) = delete;
  ~Fnc() override;

  const char* name() const { return name_; }
  const char* className() const { return class_; }
  int line() const { return line_; }

 private:
  char* name_;
  char* class_;  // in the block of name_
  std::int32_t line_;
};

}  // namespace kesto
