#include "workbench/project/path_text.h"

#include <algorithm>

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

bool isAbsolutePath(std::string_view path) {
  return (path.size() >= 3 && path[1] == ':' && isSeparator(path[2])) ||
         (path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1]));
}

bool mayNameFile(std::string_view path) {
  const std::string_view after_drive = path.substr(std::min<std::size_t>(path.size(), 2));
  return !fileName(path).empty() && after_drive.find_first_of(":*?\"<>|") == after_drive.npos;
}

}  // namespace workbench
