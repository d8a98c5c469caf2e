#include "part.h"

Part bracket08() {
  return Part{"bracket 8", 40};
}
