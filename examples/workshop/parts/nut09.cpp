#include "part.h"

Part nut09() {
  return Part{"nut 9", 45};
}
