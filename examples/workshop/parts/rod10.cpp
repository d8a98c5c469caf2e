#include "part.h"

Part rod10() {
  return Part{"rod 10", 50};
}
