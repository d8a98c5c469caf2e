#include "workbench/windows/path_text.h"

#include <algorithm>
#include <vector>

namespace workbench {
namespace {

bool isSeparator(char c) {
  return c == '\\' || c == '/';
}

char foldByte(char c) {
  const auto byte = static_cast<unsigned char>(c);
  const bool upper = (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
  return upper ? static_cast<char>(byte + 32) : c;
}

}  // namespace

std::string foldCase(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    c = foldByte(c);
  }
  return result;
}

bool samePath(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) {
    return false;
  }
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (foldByte(a[i]) != foldByte(b[i]) && !(isSeparator(a[i]) && isSeparator(b[i]))) {
      return false;
    }
  }
  return true;
}

std::string joinPath(std::string_view folder, std::string_view name) {
  std::string result(folder);
  if (!result.empty() && !isSeparator(result.back())) {
    result += '\\';
  }
  result += name;
  return result;
}

std::string_view fileName(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string_view folderOf(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  if (slash == std::string_view::npos) {
    return {};
  }
  const bool root = slash == 0 || (slash == 2 && path[1] == ':');
  return path.substr(0, root ? slash + 1 : slash);
}

std::string_view extensionOf(std::string_view path) {
  const std::string_view name = fileName(path);
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : name.substr(dot);
}

namespace {

std::vector<std::string_view> partsOf(std::string_view path) {
  std::vector<std::string_view> parts;
  while (!path.empty()) {
    const std::size_t slash = path.find_first_of("\\/");
    parts.push_back(path.substr(0, slash));
    path.remove_prefix(slash == std::string_view::npos ? path.size() : slash + 1);
  }
  return parts;
}

}  // namespace

std::string normalPath(std::string_view path) {
  // The drive, or the two empty parts, the host and the share of a network path.
  const bool network = path.size() > 1 && isSeparator(path[0]) && isSeparator(path[1]);
  const std::size_t root = network ? 4 : 1;
  std::vector<std::string_view> kept;
  for (const std::string_view part : partsOf(path)) {
    if (part == ".." && kept.size() > root && kept.back() != "..") {
      kept.pop_back();
    } else if (kept.size() < root || (part != "." && !part.empty())) {
      kept.push_back(part);
    }
  }
  std::string result;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    result += i == 0 ? "" : "\\";
    result += kept[i];
  }
  // A drive alone means another folder than its root.
  return kept.size() == 1 && !network ? result + "\\" : result;
}

std::string relativePath(std::string_view folder, std::string_view path) {
  const std::vector<std::string_view> from = partsOf(folder);
  const std::vector<std::string_view> to = partsOf(path);
  std::size_t common = 0;
  while (common < from.size() && common < to.size() && samePath(from[common], to[common])) {
    ++common;
  }
  const bool network = path.size() > 1 && isSeparator(path[0]) && isSeparator(path[1]);
  if (common < (network ? 5U : 2U) && common < from.size()) {
    return std::string(path);
  }
  std::string result;
  for (std::size_t i = common; i < from.size(); ++i) {
    result += result.empty() ? ".." : "\\..";
  }
  for (std::size_t i = common; i < to.size(); ++i) {
    result += result.empty() ? "" : "\\";
    result += to[i];
  }
  return result.empty() ? "." : result;
}

bool isAbsolutePath(std::string_view path) {
  return (path.size() >= 3 && path[1] == ':' && isSeparator(path[2])) ||
         (path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1]));
}

bool mayNameFile(std::string_view path) {
  const std::string_view after_drive = path.substr(std::min<std::size_t>(path.size(), 2));
  return !fileName(path).empty() && after_drive.find_first_of(":*?\"<>|") == after_drive.npos;
}

}  // namespace workbench
