#include "part.h"

Part bracket03() {
  return Part{"bracket 3", 15};
}
