#include "part.h"

Part hinge08() {
  return Part{"hinge 8", 40};
}
