#include "part.h"

Part hinge05() {
  return Part{"hinge 5", 25};
}
