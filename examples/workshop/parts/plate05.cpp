#include "part.h"

Part plate05() {
  return Part{"plate 5", 25};
}
