#include "part.h"

Part axle07() {
  return Part{"axle 7", 35};
}
