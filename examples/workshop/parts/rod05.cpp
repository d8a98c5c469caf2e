#include "part.h"

Part rod05() {
  return Part{"rod 5", 25};
}
