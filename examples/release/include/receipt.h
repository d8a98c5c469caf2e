// A receipt: items one by one, then the total with the tax it holds.
#pragma once

#include "money.h"

class Receipt {
 public:
  explicit Receipt(int tax_percent) : tax_percent_(tax_percent) {}

  // Prints the item's line.
  void add(const char* name, int count, Money price);
  // Prints the last lines.
  void close() const;

 private:
  int tax_percent_;
  Money total_;
};
