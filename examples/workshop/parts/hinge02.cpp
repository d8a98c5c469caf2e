#include "part.h"

Part hinge02() {
  return Part{"hinge 2", 10};
}
