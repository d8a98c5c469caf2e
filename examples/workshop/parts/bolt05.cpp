#include "part.h"

Part bolt05() {
  return Part{"bolt 5", 25};
}
