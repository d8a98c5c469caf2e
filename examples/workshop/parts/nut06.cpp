#include "part.h"

Part nut06() {
  return Part{"nut 6", 30};
}
