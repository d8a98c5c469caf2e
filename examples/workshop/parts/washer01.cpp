#include "part.h"

Part washer01() {
  return Part{"washer 1", 5};
}
