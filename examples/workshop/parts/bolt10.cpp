#include "part.h"

Part bolt10() {
  return Part{"bolt 10", 50};
}
