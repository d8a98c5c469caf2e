// Which characters make up an identifier.
#pragma once

namespace kesto {

// Letters without accents, digits and "_".
constexpr bool isIdentifierCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

}  // namespace kesto
