#include "cli/posix/disk_names.h"

#include <dirent.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "workbench/events/ansi.h"
#include "workbench/windows/path_text.h"

namespace kesto::cli {
namespace {

constexpr std::string_view kDrive = "Z:";

bool isPlain(std::string_view name) {
  return std::none_of(name.begin(), name.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0x80) != 0 || c == '\\' || c == '%';
  });
}

void appendEscaped(std::string& name, std::string_view bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  for (const char c : bytes) {
    name += '%';
    name += kDigits[static_cast<unsigned char>(c) >> 4];
    name += kDigits[static_cast<unsigned char>(c) & 15];
  }
}

bool isThere(const std::string& path) {
  struct stat found = {};
  return lstat(path.c_str(), &found) == 0;
}

// Where a path parts into directory and name; "" stands for the root and "." for here.
std::string directoryOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash);
}

std::string nameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

// Without "." and, where that can be done by the text alone, without "..".
std::string tidy(std::string_view path) {
  std::vector<std::string_view> parts;
  while (!path.empty()) {
    const std::string_view part = path.substr(0, path.find('/'));
    path.remove_prefix(std::min(path.size(), part.size() + 1));
    if (part == ".." && !parts.empty()) {
      parts.pop_back();
    } else if (!part.empty() && part != "." && part != "..") {
      parts.push_back(part);
    }
  }
  std::string result;
  for (const std::string_view part : parts) {
    result += '/';
    result += part;
  }
  return result;
}

// Of a path that starts at the current directory or the root.
std::string wholePath(std::string path) {
  // Above a link is not where its name stands.
  char real[PATH_MAX] = "";
  if (path.find("..") != std::string::npos && realpath(path.c_str(), real) != nullptr) {
    path = real;
  }
  return tidy(path);
}

}  // namespace

std::string DiskNames::corePath(std::string_view disk) {
  std::string path(disk);
  if (!disk.starts_with('/')) {
    char here[PATH_MAX] = "";
    if (disk.empty() || getcwd(here, sizeof here) == nullptr) {
      errno = ENOENT;
      return {};
    }
    path = here + ('/' + path);
  }
  std::string core(kDrive);
  const std::string whole = wholePath(path);
  std::string_view rest = whole;
  while (!rest.empty()) {
    rest.remove_prefix(1);
    const std::string_view name = rest.substr(0, rest.find('/'));
    rest.remove_prefix(name.size());
    core += '\\';
    core += coreName(name);
  }
  return core;
}

std::string DiskNames::coreName(std::string_view disk_name) {
  if (isPlain(disk_name)) {
    return std::string(disk_name);
  }
  std::string name;
  bool strange = false;
  for (std::string_view rest = disk_name; !rest.empty();) {
    unsigned code = 0;
    const std::size_t length = workbench::decodeUtf8(rest, &code);
    const char ansi = length == 0 ? '?' : workbench::ansiFromCode(code);
    const bool known = length > 0 && ansi != '\\' && (ansi != '?' || code == '?');
    const std::string_view bytes = rest.substr(0, std::max<std::size_t>(length, 1));
    if (known) {
      name += ansi;
    } else {
      appendEscaped(name, bytes);
      strange = true;
    }
    rest.remove_prefix(bytes.size());
  }
  if (strange) {
    strange_[name] = disk_name;
  }
  return name;
}

std::string DiskNames::diskName(std::string_view core_name) const {
  if (isPlain(core_name)) {
    return std::string(core_name);
  }
  const auto strange = strange_.find(std::string(core_name));
  return strange != strange_.end() ? strange->second : workbench::utf8FromAnsi(core_name);
}

std::string DiskNames::diskPath(std::string_view core) const {
  if (core.empty()) {
    return {};
  }
  if (core.size() >= 2 && core[1] == ':') {
    if (core[0] != 'Z' && core[0] != 'z') {
      return {};
    }
    core.remove_prefix(2);
  } else if (core.starts_with("\\\\")) {
    return {};
  }
  std::string path;
  path.reserve(core.size());
  while (true) {
    const std::size_t end = std::min(core.find_first_of("\\/"), core.size());
    path += diskName(core.substr(0, end));
    core.remove_prefix(end);
    if (core.empty()) {
      return path.empty() ? "/" : path;
    }
    path += '/';
    core.remove_prefix(1);
  }
}

std::string DiskNames::find(std::string_view core) {
  const std::string path = diskPath(core);
  return path.empty() || isThere(path) ? path : findExisting(path);
}

// Of a path that is not there as it is written.
std::string DiskNames::findExisting(const std::string& disk_path) {
  std::string directory = directoryOf(disk_path);
  if (!directory.empty() && directory != disk_path && known_.find(directory) == known_.end() &&
      !isThere(directory)) {
    directory = findExisting(directory);
  }
  const std::string name = nameOf(disk_path);
  const Names& names = namesIn(directory);
  const auto found = names.find(workbench::foldCase(coreName(name)));
  return directory + '/' + (found != names.end() ? found->second : name);
}

DiskNames::Names& DiskNames::namesIn(const std::string& directory) {
  const auto [known, is_new] = known_.try_emplace(directory);
  if (!is_new) {
    return known->second;
  }
  if (DIR* const open = opendir(directory.empty() ? "/" : directory.c_str())) {
    while (const dirent* entry = readdir(open)) {
      known->second.emplace(workbench::foldCase(coreName(entry->d_name)), entry->d_name);
    }
    closedir(open);
  }
  return known->second;
}

void DiskNames::made(const std::string& disk_path) {
  const auto known = known_.find(directoryOf(disk_path));
  if (known != known_.end()) {
    const std::string name = nameOf(disk_path);
    known->second[workbench::foldCase(coreName(name))] = name;
  }
}

void DiskNames::gone(const std::string& disk_path) {
  const auto known = known_.find(directoryOf(disk_path));
  if (known != known_.end()) {
    known->second.erase(workbench::foldCase(coreName(nameOf(disk_path))));
  }
}

}  // namespace kesto::cli
