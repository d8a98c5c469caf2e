#include "part.h"

Part rod01() {
  return Part{"rod 1", 5};
}
