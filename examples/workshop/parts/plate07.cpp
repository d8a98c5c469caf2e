#include "part.h"

Part plate07() {
  return Part{"plate 7", 35};
}
