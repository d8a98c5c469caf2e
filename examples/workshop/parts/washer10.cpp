#include "part.h"

Part washer10() {
  return Part{"washer 10", 50};
}
