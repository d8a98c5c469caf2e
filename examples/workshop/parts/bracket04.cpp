#include "part.h"

Part bracket04() {
  return Part{"bracket 4", 20};
}
