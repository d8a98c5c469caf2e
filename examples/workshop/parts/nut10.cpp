#include "part.h"

Part nut10() {
  return Part{"nut 10", 50};
}
