#include "part.h"

Part gear01() {
  return Part{"gear 1", 5};
}
