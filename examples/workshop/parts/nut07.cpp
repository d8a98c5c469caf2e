#include "part.h"

Part nut07() {
  return Part{"nut 7", 35};
}
