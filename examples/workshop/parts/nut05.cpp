#include "part.h"

Part nut05() {
  return Part{"nut 5", 25};
}
