#include "part.h"

Part hinge07() {
  return Part{"hinge 7", 35};
}
