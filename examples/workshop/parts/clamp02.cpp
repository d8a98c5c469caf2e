#include "part.h"

Part clamp02() {
  return Part{"clamp 2", 10};
}
