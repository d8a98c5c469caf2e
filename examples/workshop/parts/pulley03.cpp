#include "part.h"

Part pulley03() {
  return Part{"pulley 3", 15};
}
