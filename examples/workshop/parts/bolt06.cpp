#include "part.h"

Part bolt06() {
  return Part{"bolt 6", 30};
}
