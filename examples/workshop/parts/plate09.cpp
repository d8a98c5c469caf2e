#include "part.h"

Part plate09() {
  return Part{"plate 9", 45};
}
