#include "part.h"

Part nut01() {
  return Part{"nut 1", 5};
}
