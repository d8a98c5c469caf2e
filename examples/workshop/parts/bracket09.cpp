#include "part.h"

Part bracket09() {
  return Part{"bracket 9", 45};
}
