#include "part.h"

Part plate10() {
  return Part{"plate 10", 50};
}
