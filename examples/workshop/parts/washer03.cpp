#include "part.h"

Part washer03() {
  return Part{"washer 3", 15};
}
