#include "part.h"

Part spring03() {
  return Part{"spring 3", 15};
}
