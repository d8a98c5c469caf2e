#include "part.h"

Part gear08() {
  return Part{"gear 8", 40};
}
