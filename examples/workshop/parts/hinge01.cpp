#include "part.h"

Part hinge01() {
  return Part{"hinge 1", 5};
}
