#include "money.h"

#include <cstdio>
#include <cstdlib>

Money Money::includedTax(int percent) const {
  const long whole = 100 + percent;
  return Money((cents_ * percent + whole / 2) / whole);
}

void Money::print(char* text) const {
  const long size = std::labs(cents_);
  std::snprintf(text, 32, "%s%ld.%02ld", cents_ < 0 ? "-" : "", size / 100, size % 100);
}
