#include "part.h"

Part axle03() {
  return Part{"axle 3", 15};
}
