#include "part.h"

Part bolt04() {
  return Part{"bolt 4", 20};
}
