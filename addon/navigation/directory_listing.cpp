#include "addon/navigation/directory_listing.h"

#include <io.h>
#include <sys/stat.h>

#include <string>

namespace kesto {

bool DirectoryListing::isFile(const char* path) {
  struct _stat status = {};
  return _stat(path, &status) == 0 && (status.st_mode & _S_IFDIR) == 0;
}

void DirectoryListing::listDirectories(const char* directory, Tableau<String>& names) {
  std::string pattern(directory);
  if (pattern.back() != '\\' && pattern.back() != '/') {
    pattern += '\\';
  }
  pattern += '*';
  _finddata_t entry = {};
  const intptr_t search = _findfirst(pattern.c_str(), &entry);
  if (search == -1) {
    return;
  }
  do {
    if ((entry.attrib & _A_SUBDIR) != 0) {
      names.append(new String(entry.name));
    }
  } while (_findnext(search, &entry) == 0);
  _findclose(search);
}

}  // namespace kesto
