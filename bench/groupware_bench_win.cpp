// groupware_bench_win PROJECT SERVER   prints, a name and a number each:
//   plain   best milliseconds of a loop that walks both trees, a listing a folder, and
//           asks for each file's time
//   lists   of filling the send list and the get list of the same trees
//   rows    of both lists, one filling
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "addon/groupware/group_files_win.h"
#include "addon/groupware/group_lists.h"
#include "bench/turns.h"

namespace kesto {
namespace {

constexpr int kRounds = 7;
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

int measure(const char* project, const char* server) {
  GroupFilesWin files;
  const GroupRoots roots = {project, server};
  SendList sending;
  GetList getting;
  std::uint64_t newest = 0;
  Turns turns;
  turns.add("plain", [&] {
    walk(project, newest);
    walk(server, newest);
  });
  turns.add("lists", [&] {
    fillSendList(sending, files, roots, kFilters);
    fillGetList(getting, files, roots, kFilters);
  });
  turns.run(kRounds);
  printf("rows %d\n", sending.count() + getting.count());
  return newest != 0 ? 0 : 1;
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  return argc == 3 ? kesto::measure(argv[1], argv[2]) : 2;
}
