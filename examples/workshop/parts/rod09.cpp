#include "part.h"

Part rod09() {
  return Part{"rod 9", 45};
}
