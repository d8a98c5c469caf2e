// groupware_bench_win DIRECTORY...   prints of the trees "project" and "server" in each, counted
// from 0, a name and a number each:
//   plain-0   best milliseconds of a loop that walks both trees, a listing a folder, and
//             asks for each file's time
//   lists-0   of filling the send list and the get list of the same trees
//   rows-0    of both lists, one filling
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "addon/groupware/group_files_win.h"
#include "addon/groupware/group_lists.h"
#include "bench/turns.h"

namespace kesto {
namespace {

constexpr int kRounds = 12;
constexpr char kFilters[] = "*.cpp;*.cc;*.c;*.h;*.rh;*.rc;*.bmp;*.ico;*.gif";

// What has to be done at the least by whoever has a file's name alone.
void walk(const std::string& directory, std::uint64_t& newest) {
  std::vector<std::string> directories;
  WIN32_FIND_DATAA found = {};
  const HANDLE search = FindFirstFileA((directory + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) {
    return;
  }
  do {
    const std::string path = directory + '\\' + found.cFileName;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      WIN32_FILE_ATTRIBUTE_DATA data = {};
      GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data);
      newest = std::max<std::uint64_t>(newest, data.ftLastWriteTime.dwHighDateTime);
    } else if (found.cFileName[0] != '.') {
      directories.push_back(path);
    }
  } while (FindNextFileA(search, &found) != FALSE);
  FindClose(search);
  for (const std::string& below : directories) {
    walk(below, newest);
  }
}

struct Trees {
  explicit Trees(const std::string& directory)
      : roots{directory + "\\project", directory + "\\server"} {}

  void addTo(Turns& turns, const std::string& number) {
    turns.add("plain-" + number, [this] {
      walk(roots.project, newest);
      walk(roots.server, newest);
    });
    turns.add("lists-" + number, [this] {
      fillSendList(sending, files, roots, kFilters);
      fillGetList(getting, files, roots, kFilters);
    });
  }
  int rows() const { return sending.count() + getting.count(); }

  GroupFilesWin files;
  GroupRoots roots;
  SendList sending;
  GetList getting;
  std::uint64_t newest = 0;
};

int measure(const std::vector<std::string>& directories) {
  std::vector<std::unique_ptr<Trees>> all;
  Turns turns;
  for (const std::string& directory : directories) {
    all.push_back(std::make_unique<Trees>(directory));
    all.back()->addTo(turns, std::to_string(all.size() - 1));
  }
  turns.run(kRounds);
  bool walked = true;
  for (std::size_t i = 0; i < all.size(); ++i) {
    printf("rows-%u %d\n", static_cast<unsigned>(i), all[i]->rows());
    walked = walked && all[i]->newest != 0;
  }
  return walked ? 0 : 1;
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  return argc > 1 ? kesto::measure({argv + 1, argv + argc}) : 2;
}
