#include "part.h"

Part hinge06() {
  return Part{"hinge 6", 30};
}
