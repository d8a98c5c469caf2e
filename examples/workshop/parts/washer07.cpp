#include "part.h"

Part washer07() {
  return Part{"washer 7", 35};
}
