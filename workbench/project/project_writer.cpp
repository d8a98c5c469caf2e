#include <algorithm>

#include "workbench/project/project_file.h"
#include "workbench/project/project_words.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

constexpr std::size_t kIndent = 2;

// A path as it is written: from the folder on.
std::string shortPath(const ProjectTree& tree, const std::string& folder, const NodeInfo& node) {
  if (!tree.isPathName(node.parent, node.name, node.type)) {
    return node.name;
  }
  const std::string rest = relativePath(folder, node.name);
  // What would be read otherwise than it is meant stays whole.
  return !rest.empty() && rest[0] == '#' ? node.name : rest;
}

// Texts, which end with a zero, are easier on the eye than their bytes.
bool isText(const std::string& bytes) {
  return bytes.size() > 1 && bytes.back() == '\0' &&
         std::all_of(bytes.begin(), bytes.end() - 1,
                     [](char c) { return static_cast<unsigned char>(c) >= 0x20 && c != 0x7F; });
}

std::string optionValue(const std::string& bytes) {
  if (isText(bytes)) {
    return quotedWord(bytes);
  }
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string result = "hex";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    result += ' ';
    result += kDigits[byte >> 4];
    result += kDigits[byte & 15];
  }
  return result;
}

class Writer {
 public:
  Writer(const ProjectTree& tree, const std::string& folder)
      : tree_(tree), folder_(folder), end_(tree.crlf ? "\r\n" : "\n") {}

  std::string write() {
    raw(kProjectHead + std::to_string(kProjectVersion));
    writeTop();
    raw("end");
    return std::move(out_);
  }

 private:
  using What = FileItem::What;

  void raw(const std::string& text) { out_ += text + end_; }
  void line(const std::string& text) { raw(std::string(depth_ * kIndent, ' ') + text); }

  void writeBuild() {
    if (!tree_.build.empty()) {
      line("build " + quotedWord(tree_.build));
    }
  }
  void writeOption(const std::string& name) {
    const auto found = tree_.options.find(name);
    if (found != tree_.options.end()) {
      line("option " + quotedWord(name) + " " + optionValue(found->second));
    }
  }
  static bool has(const std::vector<FileItem>& items, What what) {
    return std::any_of(items.begin(), items.end(),
                       [what](const FileItem& item) { return item.what == what; });
  }

  void writeTop() {
    // Whatever the file did not have comes before its first node, nodes at the end.
    const auto first_node =
        std::find_if(tree_.items.begin(), tree_.items.end(),
                     [](const FileItem& item) { return item.what == What::kNode; });
    for (auto item = tree_.items.begin(); item != first_node; ++item) {
      writeTopItem(*item);
    }
    if (!has(tree_.items, What::kBuild)) {
      writeBuild();
    }
    writeNewOptions();
    for (auto item = first_node; item != tree_.items.end(); ++item) {
      writeTopItem(*item);
    }
    writeNewNodes(tree_.items, tree_.top);
  }

  void writeTopItem(const FileItem& item) {
    switch (item.what) {
      case What::kBuild:
        writeBuild();
        break;
      case What::kOption:
        writeOption(item.text);
        break;
      case What::kNode:
        writeNode(item.number);
        break;
      default:
        raw(item.text);
        break;
    }
  }

  void writeNewOptions() {
    std::vector<std::string> known;
    for (const FileItem& item : tree_.items) {
      if (item.what == What::kOption) {
        known.push_back(item.text);
      }
    }
    std::sort(known.begin(), known.end());
    for (const auto& [name, bytes] : tree_.options) {
      if (!std::binary_search(known.begin(), known.end(), name)) {
        writeOption(name);
      }
    }
  }

  void writeNewNodes(const std::vector<FileItem>& items, const std::vector<unsigned int>& nodes) {
    std::vector<unsigned int> known;
    for (const FileItem& item : items) {
      if (item.what == What::kNode) {
        known.push_back(item.number);
      }
    }
    std::sort(known.begin(), known.end());
    for (const unsigned int id : nodes) {
      if (!std::binary_search(known.begin(), known.end(), id)) {
        writeNode(id);
      }
    }
  }

  void writeNode(unsigned int id) {
    const NodeInfo* info = tree_.find(id);
    if (info == nullptr) {
      return;
    }
    const std::string head =
        "node " + quotedWord(shortPath(tree_, folder_, *info)) + " " + quotedWord(info->type);
    const bool empty = info->description.empty() && info->options.empty() &&
                       info->children.empty() && info->items.empty();
    line(empty ? head : head + " {");
    if (!empty) {
      ++depth_;
      writeBody(*info);
      --depth_;
      line("}");
    }
  }

  void writeBody(const NodeInfo& info) {
    if (!has(info.items, What::kDescription)) {
      writeDescription(info);
    }
    for (const auto& [kind, folders] : info.options) {
      const auto number = static_cast<unsigned int>(kind);
      const bool known =
          std::any_of(info.items.begin(), info.items.end(), [number](const FileItem& item) {
            return item.what == What::kPath && item.number == number;
          });
      if (!known) {
        writePath(info, kind);
      }
    }
    for (const FileItem& item : info.items) {
      switch (item.what) {
        case What::kDescription:
          writeDescription(info);
          break;
        case What::kPath:
          writePath(info, static_cast<int>(item.number));
          break;
        case What::kNode:
          writeNode(item.number);
          break;
        default:
          raw(item.text);
          break;
      }
    }
    writeNewNodes(info.items, info.children);
  }

  void writeDescription(const NodeInfo& info) {
    if (!info.description.empty()) {
      line("description " + quotedWord(info.description));
    }
  }
  void writePath(const NodeInfo& info, int kind) {
    const auto found = info.options.find(kind);
    if (found != info.options.end()) {
      line("path " + std::to_string(kind) + " " + quotedWord(found->second));
    }
  }

  const ProjectTree& tree_;
  const std::string& folder_;
  const char* end_;
  std::size_t depth_ = 0;
  std::string out_;
};

}  // namespace

std::string writeProjectFile(const ProjectTree& tree, const std::string& folder) {
  return Writer(tree, folder).write();
}

}  // namespace workbench
