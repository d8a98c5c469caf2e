// The start of every test program: what a test writes by a relative name lands in the
// build tree, wherever the program is called from.
#define DOCTEST_CONFIG_IMPLEMENT
#include <cstdio>
#include <filesystem>

#include "doctest.h"

int main(int argc, char** argv) {
  std::error_code fault;
  std::filesystem::current_path(TEST_OUTPUT_DIR, fault);
  if (fault) {
    std::fputs("cannot work in " TEST_OUTPUT_DIR "\n", stderr);
    return 1;
  }
  doctest::Context context(argc, argv);
  return context.run();
}
