#include "part.h"

Part washer08() {
  return Part{"washer 8", 40};
}
