#include "part.h"

Part clamp01() {
  return Part{"clamp 1", 5};
}
