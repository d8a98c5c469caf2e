#include "addon/navigation/fnc.h"

#include <algorithm>

namespace kesto {

namespace {

char* copyOf(std::string_view text) {
  char* copy = new char[text.size() + 1];
  *std::copy(text.begin(), text.end(), copy) = '\0';
  return copy;
}

}  // namespace

Fnc::Fnc(std::string_view name, std::string_view class_name, int line)
    : name_(copyOf(name)), class_(copyOf(class_name)), line_(line) {}

Fnc::~Fnc() {
  delete[] name_;
  delete[] class_;
}

}  // namespace kesto
