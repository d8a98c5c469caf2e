#include "part.h"

Part bolt01();

int main() {
  return bolt01().length == 5 ? 0 : 1;
}
