#include "part.h"

Part spring08() {
  return Part{"spring 8", 40};
}
