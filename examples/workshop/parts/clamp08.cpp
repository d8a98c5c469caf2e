#include "part.h"

Part clamp08() {
  return Part{"clamp 8", 40};
}
