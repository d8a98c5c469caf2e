#include "part.h"

Part bracket01() {
  return Part{"bracket 1", 5};
}
