#include <cstdio>

#include "ledger.h"

int main()
{
  Ledger book;
  book.open("Ada").deposit(CENTS(120, 50));
  book.transfer("Ada", "Grace", CENTS(20, 0));
  printf("Grace %ld, interest %ld\n", book.open("Grace").balance(), interest(2000, 5));
  return book.total() == CENTS(120, 50) ? 0 : 1;
}
