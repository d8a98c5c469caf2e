#include "part.h"

Part plate01() {
  return Part{"plate 1", 5};
}
