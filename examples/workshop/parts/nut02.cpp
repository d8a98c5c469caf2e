#include "part.h"

Part nut02() {
  return Part{"nut 2", 10};
}
