#include "part.h"

Part clamp04() {
  return Part{"clamp 4", 20};
}
