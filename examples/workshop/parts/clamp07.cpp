#include "part.h"

Part clamp07() {
  return Part{"clamp 7", 35};
}
