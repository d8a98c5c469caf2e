#include "part.h"

Part axle05() {
  return Part{"axle 5", 25};
}
