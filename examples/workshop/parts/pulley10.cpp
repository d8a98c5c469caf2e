#include "part.h"

Part pulley10() {
  return Part{"pulley 10", 50};
}
