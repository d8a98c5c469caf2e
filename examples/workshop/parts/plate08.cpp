#include "part.h"

Part plate08() {
  return Part{"plate 8", 40};
}
