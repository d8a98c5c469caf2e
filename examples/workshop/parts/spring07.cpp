#include "part.h"

Part spring07() {
  return Part{"spring 7", 35};
}
