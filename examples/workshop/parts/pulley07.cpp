#include "part.h"

Part pulley07() {
  return Part{"pulley 7", 35};
}
