#include "part.h"

Part rod07() {
  return Part{"rod 7", 35};
}
