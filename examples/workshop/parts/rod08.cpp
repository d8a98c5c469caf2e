#include "part.h"

Part rod08() {
  return Part{"rod 8", 40};
}
