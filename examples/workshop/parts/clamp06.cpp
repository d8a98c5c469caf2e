#include "part.h"

Part clamp06() {
  return Part{"clamp 6", 30};
}
