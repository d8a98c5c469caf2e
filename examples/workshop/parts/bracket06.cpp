#include "part.h"

Part bracket06() {
  return Part{"bracket 6", 30};
}
