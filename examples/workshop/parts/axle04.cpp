#include "part.h"

Part axle04() {
  return Part{"axle 4", 20};
}
