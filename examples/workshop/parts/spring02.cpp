#include "part.h"

Part spring02() {
  return Part{"spring 2", 10};
}
