#include "addon/foundation/string.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

#include "addon/foundation/binary_form.h"
#include "addon/foundation/message_box.h"

namespace kesto {

namespace {

std::size_t sizeOf(const char* text) {
  return text == nullptr ? 0 : strlen(text);
}

}  // namespace

String::String() : text_(static_cast<char*>(malloc(1))), length_(0) {
  text_[0] = '\0';
}

String::String(const char* text) : text_(nullptr), length_(0) {
  assign(text, sizeOf(text));
}

String::String(std::string_view text) : text_(nullptr), length_(0) {
  assign(text.data(), text.size());
}

String::String(long int number) : text_(nullptr), length_(0) {
  const std::string digits = std::to_string(number);
  assign(digits.data(), digits.size());
}

String::String(const String& other) : Basic(other), text_(nullptr), length_(0) {
  assign(other.text_, other.length_);
}

String::~String() {
  free(text_);
}

String& String::operator=(const char* text) {
  assign(text, sizeOf(text));
  return *this;
}

String& String::operator=(std::string_view text) {
  assign(text.data(), text.size());
  return *this;
}

String& String::operator=(long int number) {
  const std::string digits = std::to_string(number);
  assign(digits.data(), digits.size());
  return *this;
}

String& String::operator=(const String& other) {
  if (this != &other) {
    assign(other.text_, other.length_);
  }
  return *this;
}

String& String::operator+=(const char* text) {
  append(text, sizeOf(text));
  return *this;
}

String& String::operator+=(std::string_view text) {
  append(text.data(), text.size());
  return *this;
}

String& String::operator+=(const String& other) {
  append(other.text_, other.length_);
  return *this;
}

String& String::operator+=(long int number) {
  const std::string digits = std::to_string(number);
  append(digits.data(), digits.size());
  return *this;
}

void String::resize(std::size_t size) {
  text_ = static_cast<char*>(realloc(text_, size + 1));
  text_[size] = '\0';
  length_ = static_cast<std::uint16_t>(size);
}

void String::assign(const char* source, std::size_t size) {
  size = std::min(size, kMaxLength);
  // A source inside the own block is no longer than the block: it moves first.
  const bool own = text_ != nullptr && source >= text_ && source <= text_ + length_;
  if (own) {
    memmove(text_, source, size);
  }
  resize(size);
  if (!own && size > 0) {
    memcpy(text_, source, size);
  }
}

void String::append(const char* source, std::size_t size) {
  size = std::min(size, kMaxLength - length_);
  if (size == 0) {
    return;
  }
  const bool own = source >= text_ && source <= text_ + length_;
  const std::size_t offset = own ? static_cast<std::size_t>(source - text_) : 0;
  // A caller may have shortened the text by writing a terminator into it.
  const std::size_t end = strlen(text_);
  resize(length_ + size);
  memmove(text_ + end, own ? text_ + offset : source, size);
  memset(text_ + end + size, 0, length_ - end - size);
}

int String::fWrite(FILE* file) const {
  return writeUint16(file, length_) && fwrite(text_, length_ + 1U, 1, file) == 1;
}

int String::fRead(FILE* file) {
  constexpr std::size_t kPiece = 4096;
  std::uint16_t length = 0;
  if (!readUint16(file, &length)) {
    return 0;
  }
  // What is there is not wanted any more: it need not be moved to a longer block.
  free(text_);
  text_ = nullptr;
  // The terminator comes with the last piece, whatever it is.
  std::size_t arrived = 0;
  while (arrived <= length) {
    const std::size_t wanted = std::min<std::size_t>(kPiece, length + 1U - arrived);
    resize(arrived + wanted - 1);
    const std::size_t got = fread(text_ + arrived, 1, wanted, file);
    arrived += got;
    if (got < wanted) {
      resize(arrived);
      return 0;
    }
  }
  text_[length] = '\0';
  return 1;
}

String::operator long int() const {
  return strtol(text_, nullptr, 10);
}

char* String::at(long long index) const {
  static char empty[1];
  if (index >= 0 && index <= length_) {
    return text_ + index;
  }
  showMessage(nullptr, "Parcours de chaine hors limite !", "Erreur", kMessageOk);
  empty[0] = '\0';
  return empty;
}

bool operator==(const String& left, const char* right) {
  return strcmp(left.text(), right) == 0;
}

bool operator==(const String& left, const String& right) {
  return left == right.text();
}

}  // namespace kesto
