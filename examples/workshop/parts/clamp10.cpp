#include "part.h"

Part clamp10() {
  return Part{"clamp 10", 50};
}
