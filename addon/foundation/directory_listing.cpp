#include "addon/foundation/directory_listing.h"

#include <io.h>
#include <sys/stat.h>

#include "addon/foundation/path.h"

namespace kesto {
namespace {

constexpr unsigned kVolumeLabel = 0x08;

bool isDirectory(unsigned attributes) {
  return (attributes & _A_SUBDIR) != 0;
}

// Appends the entries that fit the pattern and the wanted attributes; volume labels
// are neither files nor directories.
void list(const char* directory, const char* pattern, Tableau<String>& names,
          bool (*wanted)(unsigned attributes)) {
  _finddata_t entry = {};
  const intptr_t search = _findfirst(joinPath(directory, pattern), &entry);
  if (search == -1) {
    return;
  }
  do {
    if ((entry.attrib & kVolumeLabel) == 0 && wanted(entry.attrib)) {
      names.append(new String(entry.name));
    }
  } while (_findnext(search, &entry) == 0);
  _findclose(search);
}

}  // namespace

bool DirectoryListing::isFile(const char* path) {
  struct _stat status = {};
  return _stat(path, &status) == 0 && (status.st_mode & _S_IFDIR) == 0;
}

void DirectoryListing::listFiles(const char* directory, const char* mask, Tableau<String>& names) {
  list(directory, mask, names, [](unsigned attributes) { return !isDirectory(attributes); });
}

void DirectoryListing::listDirectories(const char* directory, Tableau<String>& names) {
  list(directory, "*", names, isDirectory);
}

}  // namespace kesto
