#include "part.h"

Part washer04() {
  return Part{"washer 4", 20};
}
