#include "workbench/script/memory_count.h"

#include <windows.h>

#include <psapi.h>

#include <algorithm>

namespace workbench {
namespace {

constexpr DWORD kMostHeaps = 256;

void addHeap(HANDLE heap, MemoryCount* count) {
  if (!HeapLock(heap)) {
    return;
  }
  PROCESS_HEAP_ENTRY entry{};
  while (HeapWalk(heap, &entry)) {
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
      count->bytes += static_cast<long>(entry.cbData);
      ++count->blocks;
    }
  }
  HeapUnlock(heap);
}

// Not with every system: looked for, not linked.
void addCounters(MemoryCount* count) {
  using MemoryInfo = BOOL(WINAPI*)(HANDLE, PROCESS_MEMORY_COUNTERS*, DWORD);
  HMODULE module = LoadLibraryA("PSAPI.DLL");
  if (module == nullptr) {
    return;
  }
  auto memory_info = reinterpret_cast<MemoryInfo>(
      reinterpret_cast<void*>(GetProcAddress(module, "GetProcessMemoryInfo")));
  PROCESS_MEMORY_COUNTERS counters{};
  if (memory_info != nullptr && memory_info(GetCurrentProcess(), &counters, sizeof counters)) {
    count->private_kilobytes = static_cast<long>(counters.PagefileUsage / 1024);
    count->working_set_kilobytes = static_cast<long>(counters.WorkingSetSize / 1024);
  }
  FreeLibrary(module);
}

}  // namespace

MemoryCount countMemory() {
  MemoryCount count;
  HANDLE heaps[kMostHeaps];
  const DWORD all = GetProcessHeaps(kMostHeaps, heaps);
  for (DWORD i = 0; i < std::min(all, kMostHeaps); ++i) {
    addHeap(heaps[i], &count);
  }
  addCounters(&count);
  return count;
}

}  // namespace workbench
