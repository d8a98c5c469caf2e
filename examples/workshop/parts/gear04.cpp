#include "part.h"

Part gear04() {
  return Part{"gear 4", 20};
}
