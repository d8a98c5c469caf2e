#include "part.h"

Part gear05() {
  return Part{"gear 5", 25};
}
