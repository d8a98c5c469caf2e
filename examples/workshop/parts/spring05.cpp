#include "part.h"

Part spring05() {
  return Part{"spring 5", 25};
}
