#include "part.h"

Part plate06() {
  return Part{"plate 6", 30};
}
