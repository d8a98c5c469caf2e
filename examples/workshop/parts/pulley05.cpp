#include "part.h"

Part pulley05() {
  return Part{"pulley 5", 25};
}
