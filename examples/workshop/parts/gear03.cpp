#include "part.h"

Part gear03() {
  return Part{"gear 3", 15};
}
