#include "part.h"

Part rod03() {
  return Part{"rod 3", 15};
}
