#include "part.h"

Part gear10() {
  return Part{"gear 10", 50};
}
