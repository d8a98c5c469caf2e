// Texts with "%s" in them, cut at its places while compiling: a number of arguments that
// does not fit is an error of the compiler's. Any thread.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace kesto {

template <std::size_t kArguments>
class TextFormat {
 public:
  template <std::size_t kSize>
  consteval TextFormat(const char (&format)[kSize]) {  // NOLINT(google-explicit-constructor)
    std::string_view rest(format, kSize - 1);
    for (std::size_t i = 0; i < kArguments; ++i) {
      const std::size_t place = rest.find("%s");
      parts_[i] = rest.substr(0, place);
      rest.remove_prefix(place + 2);
    }
    parts_[kArguments] = rest;
  }
  std::string_view part(std::size_t i) const { return parts_[i]; }

 private:
  std::array<std::string_view, kArguments + 1> parts_;
};

// Appends the format with the arguments in the places of its "%s".
template <class... Arguments>
void appendFormat(std::string& text,
                  const std::type_identity_t<TextFormat<sizeof...(Arguments)>>& format,
                  const Arguments&... arguments) {
  std::size_t i = 0;
  ((text.append(format.part(i++)).append(std::string_view(arguments))), ...);
  text.append(format.part(i));
}

}  // namespace kesto
