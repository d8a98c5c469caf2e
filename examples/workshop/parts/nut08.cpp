#include "part.h"

Part nut08() {
  return Part{"nut 8", 40};
}
