#include "part.h"

Part washer05() {
  return Part{"washer 5", 25};
}
