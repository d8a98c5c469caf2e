#include "part.h"

Part spring10() {
  return Part{"spring 10", 50};
}
