#include "part.h"

Part axle10() {
  return Part{"axle 10", 50};
}
