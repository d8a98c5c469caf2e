// How much memory the process holds, to see whether it grows.
#pragma once

namespace workbench {

struct MemoryCount {
  long bytes = 0;   // in use on all heaps of the process, the system's own for it included
  long blocks = 0;  // that these bytes are in
  // What the system counts, in kilobytes; 0 where it does not tell.
  long private_kilobytes = 0;
  long working_set_kilobytes = 0;
};

MemoryCount countMemory();

}  // namespace workbench
