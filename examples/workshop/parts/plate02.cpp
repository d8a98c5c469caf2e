#include "part.h"

Part plate02() {
  return Part{"plate 2", 10};
}
