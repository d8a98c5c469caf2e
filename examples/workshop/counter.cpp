#include "stock.h"

int main() {
  Stock stock;
  stock.add(Part{"sample", 12});
  return stock.longest() == 12 ? 0 : 1;
}
