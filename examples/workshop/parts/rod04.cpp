#include "part.h"

Part rod04() {
  return Part{"rod 4", 20};
}
