#include "part.h"

Part gear07() {
  return Part{"gear 7", 35};
}
