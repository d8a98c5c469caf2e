#include "part.h"

Part hinge03() {
  return Part{"hinge 3", 15};
}
