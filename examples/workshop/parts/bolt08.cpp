#include "part.h"

Part bolt08() {
  return Part{"bolt 8", 40};
}
