#include "part.h"

Part plate04() {
  return Part{"plate 4", 20};
}
