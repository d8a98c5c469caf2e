// String: an owning, always zero-terminated byte string of at most 65535
// characters; longer sources are cut there. The block is exactly as long as the
// text and its terminator, and every assignment and append reallocates it: meant
// for short lists, not for building texts character by character.
//
// One owner, no locking. The text may be written through within its length.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "addon/foundation/basic.h"

namespace kesto {

class String : public Basic {
 public:
  static constexpr std::size_t kMaxLength = 65535;
  // Bytes of the shortest file form: the length and the terminator.
  static constexpr long kSmallestRecord = 3;

  String();
  // A null text counts as empty.
  String(const char* text);
  explicit String(std::string_view text);
  explicit String(long int number);
  explicit String(int number) : String(static_cast<long int>(number)) {}
  String(const String& other);
  ~String() override;

  String& operator=(const char* text);
  String& operator=(std::string_view text);
  String& operator=(long int number);
  String& operator=(int number) { return *this = static_cast<long int>(number); }
  String& operator=(const String& other);

  // Appending an empty text changes and allocates nothing.
  String& operator+=(const char* text);
  String& operator+=(std::string_view text);
  String& operator+=(const String& other);
  String& operator+=(long int number);
  String& operator+=(int number) { return *this += static_cast<long int>(number); }

  // The file form: length (unsigned 16 bits), text, zero byte. A failed read
  // leaves the characters that arrived; nothing is allocated ahead of the data.
  int fWrite(FILE* file) const override;
  int fRead(FILE* file) override;
  operator char*() const override { return text_; }
  // The number that the text starts with, 0 when it starts with none.
  explicit operator long int() const override;

  const char* text() const { return text_; }
  int length() const { return length_; }
  bool empty() const { return text_[0] == '\0'; }
  // Up to the first zero byte, as every other user of the text sees it.
  std::string_view view() const { return text_; }

  // The character at index, the terminator included. Any other index shows an
  // "Erreur" box and yields a shared empty string, emptied anew at each such call.
  char* at(long long index) const;
  template <std::integral Index>
  char& operator[](Index index) const {
    return *at(static_cast<long long>(index));
  }

 private:
  void assign(const char* source, std::size_t size);
  void append(const char* source, std::size_t size);
  // Makes the block hold size characters and a terminator; size <= kMaxLength.
  void resize(std::size_t size);

  char* text_;
  std::uint16_t length_;
};

// Texts compare by their characters up to the terminator, never by address.
bool operator==(const String& left, const char* right);
bool operator==(const String& left, const String& right);

}  // namespace kesto
