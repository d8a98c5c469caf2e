#include "part.h"

Part pulley06() {
  return Part{"pulley 6", 30};
}
