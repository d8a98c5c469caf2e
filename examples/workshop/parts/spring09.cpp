#include "part.h"

Part spring09() {
  return Part{"spring 9", 45};
}
