#include "receipt.h"

#include <cstdio>

void Receipt::add(const char* name, int count, Money price) {
  const Money sum = price.times(count);
  char text[32];
  sum.print(text);
  std::printf("%3d x %-20s %10s\n", count, name, text);
  total_ = total_.plus(sum);
}

void Receipt::close() const {
  char text[32];
  total_.print(text);
  std::printf("%-26s %10s\n", "Total", text);
  total_.includedTax(tax_percent_).print(text);
  std::printf("Tax at %2d %% in it          %10s\n", tax_percent_, text);
}
