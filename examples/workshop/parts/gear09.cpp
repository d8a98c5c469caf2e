#include "part.h"

Part gear09() {
  return Part{"gear 9", 45};
}
