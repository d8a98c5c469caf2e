#include "part.h"

Part spring01() {
  return Part{"spring 1", 5};
}
