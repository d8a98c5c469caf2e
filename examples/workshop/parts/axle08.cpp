#include "part.h"

Part axle08() {
  return Part{"axle 8", 40};
}
