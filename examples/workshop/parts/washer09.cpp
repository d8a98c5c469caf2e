#include "part.h"

Part washer09() {
  return Part{"washer 9", 45};
}
