#include "part.h"

Part pulley09() {
  return Part{"pulley 9", 45};
}
