#include "part.h"

Part axle02() {
  return Part{"axle 2", 10};
}
