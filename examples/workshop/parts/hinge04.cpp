#include "part.h"

Part hinge04() {
  return Part{"hinge 4", 20};
}
