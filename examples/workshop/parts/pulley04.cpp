#include "part.h"

Part pulley04() {
  return Part{"pulley 4", 20};
}
