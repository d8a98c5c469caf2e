#include "part.h"

Part pulley08() {
  return Part{"pulley 8", 40};
}
