// delivery_bench_win SOURCES DELIVERED PLAIN   prints, a name and a number each:
//   read, compare   best times in milliseconds: a plain loop that reads every file of SOURCES
//                   and its copy in DELIVERED in blocks of 64 KB, and the selection of what
//                   is to be delivered, which compares them
//   plain, copy     a plain loop that copies SOURCES into PLAIN in blocks of 64 KB, and the
//                   delivery of them into DELIVERED; neither directory has copies before
//   plain-over, copy-over   the same with copies of the last time in both
//   files, bytes    of SOURCES
//
// The bar is painted over the status window of a frame that is played.
#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "addon/delivery/delivery_list.h"
#include "addon/delivery/delivery_run.h"
#include "addon/ide/access.h"
#include "addon/ide/copy_files_win.h"
#include "addon/ide/progress_bar.h"
#include "addon/ide/unknown_imp.h"
#include "bench/turns.h"

namespace kesto {
namespace {

constexpr int kRounds = 25;
constexpr std::size_t kBlock = 65536;

class Ide : public IUnknownImp<IIde> {
 public:
  IIdeString* STDMETHODCALLTYPE CreateIdeString() override { return nullptr; }
  IFileStream* STDMETHODCALLTYPE CreateFileStream() override { return nullptr; }
};

class NoMessages : public DeliveryMessages {
 public:
  std::string begin(int) override { return "bench"; }
  void add(const std::string&) override {}
};

class NoWatch : public CompareWatch {
 public:
  bool goOn() override { return painting_.goOn(); }

 private:
  PaintingWatch painting_;
};

class Frame {
 public:
  Frame() {
    for (const char* name : {ideapi::kFrameClass, ideapi::kStatusClass}) {
      WNDCLASSA window_class = {};
      window_class.lpfnWndProc = DefWindowProcA;
      window_class.hInstance = GetModuleHandleA(nullptr);
      window_class.lpszClassName = name;
      RegisterClassA(&window_class);
    }
    frame_ = CreateWindowA(ideapi::kFrameClass, "bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                           1024, 768, nullptr, nullptr, nullptr, nullptr);
    CreateWindowA(ideapi::kStatusClass, "", WS_CHILD | WS_VISIBLE, 0, 700, 1000, 22, frame_,
                  nullptr, nullptr, nullptr);
  }
  ~Frame() { DestroyWindow(frame_); }
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

 private:
  HWND frame_;
};

struct Files {
  std::vector<std::string> names;
  std::uint64_t bytes = 0;
};

Files list(const std::string& directory) {
  Files files;
  WIN32_FIND_DATAA found = {};
  const HANDLE search = FindFirstFileA((directory + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) {
    return files;
  }
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      files.names.emplace_back(found.cFileName);
      files.bytes += found.nFileSizeLow;
    }
  } while (FindNextFileA(search, &found) != FALSE);
  FindClose(search);
  return files;
}

class Plain {
 public:
  void read(const std::string& path) {
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    while (block(file) > 0) {
    }
    CloseHandle(file);
  }
  void copy(const std::string& path, const std::string& new_path) {
    const HANDLE from = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    const HANDLE to =
        CreateFileA(new_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    for (DWORD size = block(from); size > 0; size = block(from)) {
      DWORD written = 0;
      WriteFile(to, buffer_.data(), size, &written, nullptr);
    }
    CloseHandle(to);
    CloseHandle(from);
  }

 private:
  DWORD block(HANDLE file) {
    DWORD given = 0;
    return ReadFile(file, buffer_.data(), kBlock, &given, nullptr) != FALSE ? given : 0;
  }
  std::vector<char> buffer_ = std::vector<char>(kBlock);
};

int measure(const std::string& sources, const std::string& delivered, const std::string& plain) {
  storeIde(new Ide);
  const Frame frame;
  const Files files = list(sources);
  Plain loop;
  CopyFilesWin disk;
  Tableau<OneDelRep> groups;
  groups.append(new OneDelRep(".exe", delivered));
  std::vector<DeliveryNode> nodes;
  Tableau<Livrage> all;
  for (const std::string& name : files.names) {
    nodes.push_back({sources + '\\' + name, ".exe"});
    all.append(new Livrage(nodes.back().file, *groups[0]));
  }
  NoWatch watch;
  NoMessages messages;
  Tableau<Livrage> differing;
  bool whole = true;

  const auto empty = [&](const std::string& directory) {
    for (const std::string& name : files.names) {
      DeleteFileA((directory + '\\' + name).c_str());
    }
  };
  const auto copy_plain = [&] {
    for (const std::string& name : files.names) {
      loop.copy(sources + '\\' + name, plain + '\\' + name);
    }
  };
  const auto copy = [&] {
    ProgressBar bar;
    whole = !deliver(all, disk, bar, messages, nullptr).failed && whole;
  };
  Turns turns;
  turns.add("plain", copy_plain, [&] { empty(plain); });
  turns.add("copy", copy, [&] { empty(delivered); });
  turns.add("plain-over", copy_plain);
  turns.add("copy-over", copy);
  turns.add("read", [&] {
    for (const std::string& name : files.names) {
      loop.read(sources + '\\' + name);
      loop.read(delivered + '\\' + name);
    }
  });
  turns.add("compare", [&] {
    whole =
        listDeliveries(nodes, groups, disk, watch, differing) && differing.count() == 0 && whole;
  });
  turns.run(kRounds);
  printf("files %d\nbytes %.0f\n", all.count(), static_cast<double>(files.bytes));
  releaseIde();
  return whole ? 0 : 1;
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  return argc == 4 ? kesto::measure(argv[1], argv[2], argv[3]) : 2;
}
