// Amounts of money as whole cents, so that sums come out even.
#pragma once

class Money {
 public:
  explicit Money(long cents = 0) : cents_(cents) {}

  long cents() const { return cents_; }
  Money plus(Money other) const { return Money(cents_ + other.cents_); }
  Money times(int count) const { return Money(cents_ * count); }
  // The share of "percent" that an amount already holds, to the nearest cent.
  Money includedTax(int percent) const;
  // "1.05" for 105 cents; room for 32 characters.
  void print(char* text) const;

 private:
  long cents_;
};
