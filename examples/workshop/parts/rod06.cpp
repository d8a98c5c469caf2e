#include "part.h"

Part rod06() {
  return Part{"rod 6", 30};
}
