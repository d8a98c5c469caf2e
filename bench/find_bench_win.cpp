// find_bench_win NAME TREE   prints, a name and a number each:
//   read, cross, method   medians in milliseconds: reading the sources of the tree by
//                         the searches' own walk and calls, and the searches themselves
//   hits                  of the cross reference
//   memory-before, memory-after   kilobytes of this process around a hundred searches
//
// The IDE is played: its file stream reads from the disk with the system's own calls.
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "addon/foundation/directory_listing.h"
#include "addon/ide/access.h"
#include "addon/ide/file_text.h"
#include "addon/ide/unknown_imp.h"
#include "addon/navigation/name_search.h"

namespace kesto {
namespace {

constexpr int kRounds = 21;
constexpr int kSearches = 100;

class Text : public IUnknownImp<IIdeString> {
 public:
  void STDMETHODCALLTYPE SetText(const char* text) override { text_ = text; }
  const char* STDMETHODCALLTYPE GetText() override { return text_.c_str(); }

 private:
  std::string text_;
};

class DiskStream : public IUnknownImp<IFileStream> {
 public:
  ~DiskStream() override { closeFile(); }
  int STDMETHODCALLTYPE Open(IIdeString* file, int) override {
    closeFile();
    file_ = CreateFileA(file->GetText(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    return file_ != INVALID_HANDLE_VALUE ? 1 : 0;
  }
  int STDMETHODCALLTYPE GetState() override { return 0; }
  long STDMETHODCALLTYPE Seek(long offset, int origin) override {
    return static_cast<long>(
        SetFilePointer(file_, offset, nullptr, origin == kStreamFromEnd ? FILE_END : FILE_BEGIN));
  }
  long STDMETHODCALLTYPE Read(void* buffer, long count) override {
    DWORD given = 0;
    return ReadFile(file_, buffer, static_cast<DWORD>(count), &given, nullptr) != FALSE
               ? static_cast<long>(given)
               : -1;
  }
  void STDMETHODCALLTYPE Close() override { closeFile(); }

 private:
  void closeFile() {
    if (file_ != INVALID_HANDLE_VALUE) {
      CloseHandle(file_);
      file_ = INVALID_HANDLE_VALUE;
    }
  }

  HANDLE file_ = INVALID_HANDLE_VALUE;
};

class Ide : public IUnknownImp<IIde> {
 public:
  IIdeString* STDMETHODCALLTYPE CreateIdeString() override { return new Text; }
  IFileStream* STDMETHODCALLTYPE CreateFileStream() override { return new DiskStream; }
};

class Reading : public FileVisitor {
 public:
  bool visit(const char* path) override {
    bytes += readFileText(path).length();
    return false;
  }
  long bytes = 0;
};

double milliseconds() {
  LARGE_INTEGER frequency;
  LARGE_INTEGER now;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&now);
  return 1e3 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

struct Measured {
  const char* name;
  std::function<void()> work;
  std::vector<double> times;
};

// Takes turns, so that a busy moment of the machine falls on all alike. The first
// round fills the caches and does not count.
void takeTurns(std::vector<Measured>& all) {
  for (int round = 0; round <= kRounds; ++round) {
    for (Measured& one : all) {
      const double begun = milliseconds();
      one.work();
      if (round > 0) {
        one.times.push_back(milliseconds() - begun);
      }
    }
  }
  for (Measured& one : all) {
    std::nth_element(one.times.begin(), one.times.begin() + kRounds / 2, one.times.end());
    printf("%s %f\n", one.name, one.times[kRounds / 2]);
  }
}

unsigned long workingSetKilobytes() {
  PROCESS_MEMORY_COUNTERS counters = {};
  counters.cb = sizeof counters;
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return static_cast<unsigned long>(counters.WorkingSetSize / 1024);
}

int measure(const char* name, const char* tree) {
  storeIde(new Ide);
  const SearchPlaces places = {tree, true, "", "", "*.cpp;*.cc;*.c", "*.h;*.rh"};
  const std::vector<SearchStep> plan = planSearch(Search::kCross, places);
  const NameMatcher cross(Search::kCross, name);
  const NameMatcher method(Search::kMethod, name);
  Tableau<QuickResu> hits;
  const auto read = [&] {
    DirectoryListing listing;
    Reading reading;
    for (const SearchStep& step : plan) {
      walkDirectory(listing, step.directory, step.mask, true, reading);
    }
  };
  std::vector<Measured> all = {{"read", read, {}},
                               {"method", [&] { collectHits(plan, true, method, hits); }, {}},
                               {"cross", [&] { collectHits(plan, true, cross, hits); }, {}}};
  takeTurns(all);
  printf("hits %d\n", hits.count());
  printf("memory-before %lu\n", workingSetKilobytes());
  for (int i = 0; i < kSearches; ++i) {
    collectHits(plan, true, i % 2 == 0 ? cross : method, hits);
  }
  printf("memory-after %lu\n", workingSetKilobytes());
  hits.clear();
  releaseIde();
  return 0;
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  return argc == 3 ? kesto::measure(argv[1], argv[2]) : 2;
}
