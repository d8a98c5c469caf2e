#include "part.h"

Part bolt01() {
  return Part{"bolt 1", 5};
}
