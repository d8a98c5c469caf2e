#include "part.h"

Part bolt09() {
  return Part{"bolt 9", 45};
}
