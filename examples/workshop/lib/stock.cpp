#include "stock.h"

void Stock::add(const Part& part) {
  if (count_ < 120) {
    parts_[count_++] = part;
  }
}

int Stock::longest() const {
  int result = 0;
  for (int i = 0; i < count_; ++i) {
    if (parts_[i].length > result) {
      result = parts_[i].length;
    }
  }
  return result;
}
