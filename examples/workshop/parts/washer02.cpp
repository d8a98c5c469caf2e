#include "part.h"

Part washer02() {
  return Part{"washer 2", 10};
}
