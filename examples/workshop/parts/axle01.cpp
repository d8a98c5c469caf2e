#include "part.h"

Part axle01() {
  return Part{"axle 1", 5};
}
