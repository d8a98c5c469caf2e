#include "cli/posix/disk_listing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string>
#include <vector>

#include "workbench/events/ansi.h"
#include "workbench/windows/path_text.h"

namespace kesto::cli {
namespace {

using Kind = DirectoryEntries::Kind;

struct CloseDirectory {
  void operator()(DIR* directory) const { closedir(directory); }
};
using Directory = std::unique_ptr<DIR, CloseDirectory>;

struct Entry {
  Kind kind;
  std::string name;       // as the core has it
  std::string disk_name;  // empty when it is the same
};

unsigned capital(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if ((byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7)) {
    return byte - 0x20U;
  }
  return byte < 0x80 ? byte : workbench::codeFromAnsi(c);
}

bool comesBefore(const Entry& left, const Entry& right) {
  const auto ends =
      std::mismatch(left.name.begin(), left.name.end(), right.name.begin(), right.name.end(),
                    [](char a, char b) { return a == b || capital(a) == capital(b); });
  if (ends.first == left.name.end() || ends.second == right.name.end()) {
    return ends.first == left.name.end() &&
           (ends.second != right.name.end() || left.name < right.name);
  }
  return capital(*ends.first) < capital(*ends.second);
}

// False for what the core has no use for.
bool kindOf(int directory, const dirent& entry, Kind& kind) {
  if (entry.d_type == DT_DIR || entry.d_type == DT_REG) {
    kind = entry.d_type == DT_DIR ? Kind::kDirectory : Kind::kFile;
    return true;
  }
  struct stat target = {};
  struct stat own = {};
  if ((entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) ||
      fstatat(directory, entry.d_name, &target, 0) != 0 ||
      fstatat(directory, entry.d_name, &own, AT_SYMLINK_NOFOLLOW) != 0) {
    return false;
  }
  if (S_ISDIR(target.st_mode)) {
    kind = S_ISLNK(own.st_mode) ? Kind::kLink : Kind::kDirectory;
    return true;
  }
  kind = Kind::kFile;
  return S_ISREG(target.st_mode);
}

std::vector<Entry> entriesOf(DIR* directory, const char* mask, DiskNames& names) {
  std::vector<Entry> entries;
  const bool all = mask == std::string_view("*");
  while (const dirent* entry = readdir(directory)) {
    Kind kind = Kind::kFile;
    std::string name = names.coreName(entry->d_name);
    if ((all || fitsMask(mask, name)) && kindOf(dirfd(directory), *entry, kind)) {
      std::string disk_name = name == entry->d_name ? std::string() : entry->d_name;
      entries.push_back({kind, std::move(name), std::move(disk_name)});
    }
  }
  std::sort(entries.begin(), entries.end(), comesBefore);
  return entries;
}

Directory openDirectory(DiskNames& names, const char* core) {
  const std::string path = names.diskPath(core);
  Directory directory(opendir(path.c_str()));
  if (directory == nullptr && errno == ENOENT) {
    directory.reset(opendir(names.find(core).c_str()));
  }
  return directory;
}

FileFacts factsOf(const struct stat& found) {
  constexpr std::int64_t kSecondsTo1970 = 11'644'473'600;
  constexpr std::int64_t kNanosecondsOfTick = 100;
  const bool is_directory = S_ISDIR(found.st_mode);
  return {(found.st_mtim.tv_sec + kSecondsTo1970) * FileFacts::kTicksPerSecond +
              found.st_mtim.tv_nsec / kNanosecondsOfTick,
          is_directory ? 0 : found.st_size,
          is_directory || (found.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0};
}

}  // namespace

void DiskListing::list(const char* directory, const char* mask, DirectoryEntries& entries) {
  if (const Directory open = openDirectory(names_, directory)) {
    for (const Entry& entry : entriesOf(open.get(), mask, names_)) {
      entries.add(entry.kind, entry.name);
    }
  }
}

void DiskListing::list(const char* directory, const char* mask, FileListener& listener) {
  const Directory open = openDirectory(names_, directory);
  if (open == nullptr) {
    return;
  }
  for (const Entry& entry : entriesOf(open.get(), mask, names_)) {
    const std::string& name = entry.disk_name.empty() ? entry.name : entry.disk_name;
    struct stat found = {};
    if (fstatat(dirfd(open.get()), name.c_str(), &found, 0) == 0) {
      listener.add(entry.kind, entry.name, {}, factsOf(found));
    }
  }
}

std::optional<FileFacts> DiskListing::facts(const char* path) {
  struct stat found = {};
  return stat(names_.find(path).c_str(), &found) == 0 ? std::optional(factsOf(found))
                                                      : std::nullopt;
}

// Only the last "*" met is ever taken back: it can stand for whatever an earlier one could.
bool fitsMask(std::string_view mask, std::string_view name) {
  const std::string folded_mask = workbench::foldCase(mask);
  const std::string folded_name = workbench::foldCase(name);
  std::size_t in_mask = 0;
  std::size_t after_star = std::string::npos;
  std::size_t star_reach = 0;
  for (std::size_t in_name = 0; in_name < folded_name.size();) {
    const char wanted = in_mask < folded_mask.size() ? folded_mask[in_mask] : '\0';
    if (wanted == '*') {
      after_star = ++in_mask;
      star_reach = in_name;
    } else if (wanted != '\0' && (wanted == '?' || wanted == folded_name[in_name])) {
      ++in_mask;
      ++in_name;
    } else if (after_star != std::string::npos) {
      in_mask = after_star;
      in_name = ++star_reach;
    } else {
      return false;
    }
  }
  return folded_mask.find_first_not_of('*', in_mask) == std::string::npos;
}

}  // namespace kesto::cli
