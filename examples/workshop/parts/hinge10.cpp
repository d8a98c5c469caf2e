#include "part.h"

Part hinge10() {
  return Part{"hinge 10", 50};
}
