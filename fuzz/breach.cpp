#include <cstdio>

#include "fuzz/fuzz.h"

namespace kesto {

void breach(const char* condition, const char* file, int line) {
  fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
  abort();
}

}  // namespace kesto
