#include "part.h"

Part rod02() {
  return Part{"rod 2", 10};
}
