#include "part.h"

Part bolt07() {
  return Part{"bolt 7", 35};
}
