// find_bench_win NAME TREE   prints, a name and a number each:
//   plain, cross, method   best times in milliseconds: a plain loop that lists each
//                         directory once and reads the same sources, and the searches
//   hits                  of the cross reference
//   memory-before, memory-after   kilobytes of this process around a hundred searches
//
// The IDE is played: its file stream reads from the disk with the system's own calls, as
// the Workbench's does.
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "addon/ide/access.h"
#include "addon/ide/file_text.h"
#include "addon/ide/unknown_imp.h"
#include "addon/navigation/ide_sources.h"
#include "bench/turns.h"

namespace kesto {
namespace {

constexpr int kRounds = 25;
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
    size_ = static_cast<long>(GetFileSize(file_, nullptr));
    position_ = 0;
    return file_ != INVALID_HANDLE_VALUE ? 1 : 0;
  }
  int STDMETHODCALLTYPE GetState() override { return 0; }
  long STDMETHODCALLTYPE Seek(long offset, int origin) override {
    position_ = offset + (origin == kStreamFromEnd ? size_ : 0);
    return position_;
  }
  long STDMETHODCALLTYPE Read(void* buffer, long count) override {
    DWORD given = 0;
    const BOOL read = ReadFile(file_, buffer, static_cast<DWORD>(count), &given, nullptr);
    position_ += static_cast<long>(given);
    return read != FALSE ? static_cast<long>(given) : -1;
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
  long size_ = 0;
  long position_ = 0;  // where the file's own stands too whenever something is read
};

class Ide : public IUnknownImp<IIde> {
 public:
  IIdeString* STDMETHODCALLTYPE CreateIdeString() override { return new Text; }
  IFileStream* STDMETHODCALLTYPE CreateFileStream() override { return new DiskStream; }
};

// What has to be done at the least: each directory listed once, each source read once.
class PlainLoop {
 public:
  void read(const std::string& directory) {
    std::vector<std::string> directories;
    WIN32_FIND_DATAA found = {};
    const HANDLE search = FindFirstFileA((directory + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
      return;
    }
    do {
      const std::string name = found.cFileName;
      if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        if (name.ends_with(".cpp") || name.ends_with(".cc") || name.ends_with(".c")) {
          readFile(directory + '\\' + name);
        }
      } else if (!name.starts_with('.')) {
        directories.push_back(directory + '\\' + name);
      }
    } while (FindNextFileA(search, &found) != FALSE);
    FindClose(search);
    for (const std::string& below : directories) {
      read(below);
    }
  }

 private:
  void readFile(const std::string& path) {
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    const DWORD size = GetFileSize(file, nullptr);
    if (size != INVALID_FILE_SIZE) {
      buffer_.resize(std::max<std::size_t>(buffer_.size(), size));
      DWORD given = 0;
      ReadFile(file, buffer_.data(), size, &given, nullptr);
    }
    CloseHandle(file);
  }

  std::vector<char> buffer_;
};

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
  IdeSources sources;
  const SearchedFiles files = sources.files();
  Turns turns;
  turns.add("plain", [&] { PlainLoop().read(tree); });
  turns.add("method", [&] { collectHits(files, plan, true, method, hits); });
  turns.add("cross", [&] { collectHits(files, plan, true, cross, hits); });
  turns.run(kRounds);
  printf("hits %d\n", hits.count());
  printf("memory-before %lu\n", workingSetKilobytes());
  for (int i = 0; i < kSearches; ++i) {
    collectHits(files, plan, true, i % 2 == 0 ? cross : method, hits);
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
