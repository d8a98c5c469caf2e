#include "part.h"

Part axle09() {
  return Part{"axle 9", 45};
}
