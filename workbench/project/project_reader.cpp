#include <algorithm>
#include <charconv>
#include <utility>

#include "workbench/project/project_file.h"
#include "workbench/project/project_words.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

class Reader {
 public:
  Reader(std::string_view bytes, const std::string& folder, ProjectTree* tree, ProjectFault* fault)
      : rest_(bytes), folder_(folder), tree_(*tree), fault_(*fault) {}

  bool read();

 private:
  bool fail(const std::string& reason) {
    fault_ = {number_, reason};
    return false;
  }
  // The next line without its end; false after the last.
  bool nextLine();
  bool readHead();
  bool readLine();
  bool readKnown(const std::string& word, const std::vector<ProjectWord>& words);
  bool readBuild(const std::vector<ProjectWord>& words);
  bool readOption(const std::vector<ProjectWord>& words);
  bool readNode(const std::vector<ProjectWord>& words);
  bool readDescription(const std::vector<ProjectWord>& words);
  bool readPath(const std::vector<ProjectWord>& words);
  bool keepBlock();
  void keep();
  void note(FileItem::What what, const std::string& text, unsigned int number) {
    items().push_back({what, text, number});
  }
  bool noted(FileItem::What what) {
    return std::any_of(items().begin(), items().end(),
                       [what](const FileItem& item) { return item.what == what; });
  }
  std::vector<FileItem>& items() {
    return open_.empty() ? tree_.items : tree_.find(open_.back())->items;
  }

  std::string_view rest_;
  std::string_view line_;
  int number_ = 0;
  const std::string& folder_;
  ProjectTree& tree_;
  ProjectFault& fault_;
  std::vector<unsigned int> open_;  // the nodes whose bodies the line is in
  bool ended_ = false;
};

bool Reader::nextLine() {
  if (rest_.empty()) {
    return false;
  }
  ++number_;
  const std::size_t end = rest_.find('\n');
  line_ = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  if (!line_.empty() && line_.back() == '\r') {
    line_.remove_suffix(1);
  }
  return true;
}

bool Reader::readHead() {
  const std::size_t end = rest_.find('\n');
  tree_.crlf = end == std::string_view::npos || (end > 0 && rest_[end - 1] == '\r');
  const bool there = nextLine();
  number_ = 1;
  if (!there || !line_.starts_with(kProjectHead)) {
    return fail("This is not a project of the Workbench.");
  }
  const std::string_view version = line_.substr(sizeof kProjectHead - 1);
  int value = 0;
  const auto [stop, bad] = std::from_chars(version.data(), version.data() + version.size(), value);
  if (bad != std::errc() || stop != version.data() + version.size() || value < 1) {
    return fail("The version of the file cannot be read.");
  }
  if (value > kProjectVersion) {
    return fail("The file was written by a newer program: its version is " + std::to_string(value) +
                ", and " + std::to_string(kProjectVersion) + " is the newest known here.");
  }
  return true;
}

bool Reader::read() {
  if (!readHead()) {
    return false;
  }
  while (nextLine()) {
    if (ended_) {
      if (!trimmed(line_).empty()) {
        return fail("There is text after the line \"end\".");
      }
    } else if (!readLine()) {
      return false;
    }
  }
  if (!ended_) {
    ++number_;
    return fail("The file ends before its line \"end\": a part of it is missing.");
  }
  return true;
}

bool Reader::readLine() {
  const std::string_view line = trimmed(line_);
  if (line == "}") {
    if (open_.empty()) {
      return fail("This \"}\" closes nothing.");
    }
    open_.pop_back();
    return true;
  }
  if (line == "end" && open_.empty()) {
    ended_ = true;
    return true;
  }
  if (line.empty() || line[0] == ';') {
    keep();
    return true;
  }
  const std::string word(line.substr(0, line.find_first_of(" \t")));
  const bool known = open_.empty() ? word == "build" || word == "option" || word == "node"
                                   : word == "description" || word == "path" || word == "node";
  if (!known) {
    if (line.back() == '{') {
      return keepBlock();
    }
    keep();
    return true;
  }
  std::vector<ProjectWord> words;
  std::string reason;
  if (!splitProjectWords(line.substr(word.size()), &words, &reason)) {
    return fail(reason);
  }
  return readKnown(word, words);
}

bool Reader::readKnown(const std::string& word, const std::vector<ProjectWord>& words) {
  if (word == "node") {
    return readNode(words);
  }
  if (word == "option") {
    return readOption(words);
  }
  if (word == "path") {
    return readPath(words);
  }
  return word == "build" ? readBuild(words) : readDescription(words);
}

bool Reader::readBuild(const std::vector<ProjectWord>& words) {
  if (words.size() != 1 || !words[0].quoted) {
    return fail("\"build\" needs one command in quotes.");
  }
  if (noted(FileItem::What::kBuild)) {
    return fail("There is a build command already.");
  }
  tree_.build = words[0].text;
  note(FileItem::What::kBuild, {}, 0);
  return true;
}

bool Reader::readOption(const std::vector<ProjectWord>& words) {
  if (words.size() < 2 || !words[0].quoted) {
    return fail("\"option\" needs a name in quotes and its value.");
  }
  std::string bytes;
  if (words[1].quoted && words.size() == 2) {
    bytes = words[1].text;
  } else if (!words[1].quoted && words[1].text == "hex") {
    for (std::size_t i = 2; i < words.size(); ++i) {
      unsigned int value = 0;
      const std::string& digits = words[i].text;
      const char* end = digits.data() + digits.size();
      const auto [stop, bad] = std::from_chars(digits.data(), end, value, 16);
      if (words[i].quoted || digits.size() != 2 || bad != std::errc() || stop != end) {
        return fail("\"" + digits + "\" is no byte in two hexadecimal digits.");
      }
      bytes.push_back(static_cast<char>(value));
    }
  } else {
    return fail("The value of an option is a text in quotes, or \"hex\" and its bytes.");
  }
  if (!tree_.options.emplace(words[0].text, std::move(bytes)).second) {
    return fail("The option \"" + words[0].text + "\" is there already.");
  }
  note(FileItem::What::kOption, words[0].text, 0);
  return true;
}

bool Reader::readNode(const std::vector<ProjectWord>& words) {
  const bool body = words.size() == 3 && !words[2].quoted && words[2].text == "{";
  if ((words.size() != 2 && !body) || !words[0].quoted || !words[1].quoted ||
      words[0].text.empty()) {
    return fail("\"node\" needs a name and a type, both in quotes.");
  }
  const unsigned int parent = open_.empty() ? 0 : open_.back();
  const std::string& type = words[1].text;
  const std::string& name = words[0].text;
  // A path of the file as a full one.
  const bool path = tree_.isPathName(parent, name, type) && !isAbsolutePath(name);
  const NodeInfo* added =
      tree_.add(parent, path ? normalPath(joinPath(folder_, name)) : name, type);
  if (added == nullptr) {
    return fail(tree_.nodes.size() >= kMostNodes
                    ? "There are more than " + std::to_string(kMostNodes) + " nodes."
                    : "Nodes stand more than " + std::to_string(kDeepestNode) + " levels deep.");
  }
  note(FileItem::What::kNode, {}, added->id);
  if (body) {
    open_.push_back(added->id);
  }
  return true;
}

bool Reader::readDescription(const std::vector<ProjectWord>& words) {
  if (words.size() != 1 || !words[0].quoted) {
    return fail("\"description\" needs one text in quotes.");
  }
  if (noted(FileItem::What::kDescription)) {
    return fail("The node has a description already.");
  }
  tree_.find(open_.back())->description = words[0].text;
  note(FileItem::What::kDescription, {}, 0);
  return true;
}

bool Reader::readPath(const std::vector<ProjectWord>& words) {
  int kind = 0;
  const std::string digits = words.empty() ? std::string() : words[0].text;
  const char* end = digits.data() + digits.size();
  const auto [stop, bad] = std::from_chars(digits.data(), end, kind);
  if (words.size() != 2 || words[0].quoted || !words[1].quoted || bad != std::errc() ||
      stop != end || kind < 0) {
    return fail("\"path\" needs the number of its kind and the folders in quotes.");
  }
  if (!tree_.find(open_.back())->options.emplace(kind, words[1].text).second) {
    return fail("The node has a path of kind " + digits + " already.");
  }
  note(FileItem::What::kPath, {}, static_cast<unsigned int>(kind));
  return true;
}

void Reader::keep() {
  note(FileItem::What::kKept, std::string(line_), 0);
}

// A block of a keyword that is not known, to its own closing brace.
bool Reader::keepBlock() {
  const int first = number_;
  int depth = 1;
  keep();
  while (depth > 0) {
    if (!nextLine()) {
      number_ = first;
      return fail("The block that starts here is not closed.");
    }
    const std::string_view line = trimmed(line_);
    if (line == "}") {
      --depth;
    } else if (!line.empty() && line.back() == '{' && line[0] != ';') {
      ++depth;
    }
    keep();
  }
  return true;
}

}  // namespace

bool readProjectFile(std::string_view bytes, const std::string& folder, ProjectTree* tree,
                     ProjectFault* fault) {
  return Reader(bytes, folder, tree, fault).read();
}

}  // namespace workbench
