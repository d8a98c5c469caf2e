#include "part.h"

Part bracket05() {
  return Part{"bracket 5", 25};
}
