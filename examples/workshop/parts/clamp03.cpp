#include "part.h"

Part clamp03() {
  return Part{"clamp 3", 15};
}
