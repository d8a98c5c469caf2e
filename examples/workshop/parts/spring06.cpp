#include "part.h"

Part spring06() {
  return Part{"spring 6", 30};
}
