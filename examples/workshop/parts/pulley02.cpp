#include "part.h"

Part pulley02() {
  return Part{"pulley 2", 10};
}
