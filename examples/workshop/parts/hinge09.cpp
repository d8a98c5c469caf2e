#include "part.h"

Part hinge09() {
  return Part{"hinge 9", 45};
}
