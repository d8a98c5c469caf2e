#include "part.h"

Part nut04() {
  return Part{"nut 4", 20};
}
