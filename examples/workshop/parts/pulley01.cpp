#include "part.h"

Part pulley01() {
  return Part{"pulley 1", 5};
}
