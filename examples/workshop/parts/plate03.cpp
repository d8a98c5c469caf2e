#include "part.h"

Part plate03() {
  return Part{"plate 3", 15};
}
