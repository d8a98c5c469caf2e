#include "part.h"

Part bracket07() {
  return Part{"bracket 7", 35};
}
