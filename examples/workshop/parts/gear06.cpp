#include "part.h"

Part gear06() {
  return Part{"gear 6", 30};
}
