#include "part.h"

Part axle06() {
  return Part{"axle 6", 30};
}
