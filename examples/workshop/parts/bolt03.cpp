#include "part.h"

Part bolt03() {
  return Part{"bolt 3", 15};
}
