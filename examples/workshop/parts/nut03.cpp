#include "part.h"

Part nut03() {
  return Part{"nut 3", 15};
}
