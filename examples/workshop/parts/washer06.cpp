#include "part.h"

Part washer06() {
  return Part{"washer 6", 30};
}
