#include "part.h"

Part clamp09() {
  return Part{"clamp 9", 45};
}
