#include "part.h"

Part clamp05() {
  return Part{"clamp 5", 25};
}
