#include "part.h"

Part bolt02() {
  return Part{"bolt 2", 10};
}
