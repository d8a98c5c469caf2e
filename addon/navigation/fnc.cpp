#include "addon/navigation/fnc.h"

#include <algorithm>

namespace kesto {

// One block holds both texts: a scan makes thousands of entries at a time.
Fnc::Fnc(std::string_view name, std::string_view class_name, int line)
    : name_(new char[name.size() + class_name.size() + 2]),
      class_(name_ + name.size() + 1),
      line_(line) {
  *std::copy(name.begin(), name.end(), name_) = '\0';
  *std::copy(class_name.begin(), class_name.end(), class_) = '\0';
}

Fnc::~Fnc() {
  delete[] name_;
}

}  // namespace kesto
