#pragma once

#include "part.h"

// Parts on the shelf, longest last.
class Stock {
 public:
  void add(const Part& part);
  int longest() const;

 private:
  Part parts_[120];
  int count_ = 0;
};
