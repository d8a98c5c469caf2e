#include "part.h"

Part bracket02() {
  return Part{"bracket 2", 10};
}
