#include "part.h"

Part gear02() {
  return Part{"gear 2", 10};
}
