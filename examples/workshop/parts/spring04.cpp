#include "part.h"

Part spring04() {
  return Part{"spring 4", 20};
}
