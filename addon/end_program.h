// The end of the program, where going on would mean working on what is not there. Any thread.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace kesto {

// The system shows that the program ended out of turn.
[[noreturn]] inline void endProgram(const char* why) {
  fputs("Kestoaob: ", stderr);
  fputs(why, stderr);
  fputc('\n', stderr);
  abort();
}

}  // namespace kesto
