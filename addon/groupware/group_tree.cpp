#include "addon/groupware/group_tree.h"

#include <algorithm>

#include "addon/foundation/directory_walk.h"
#include "addon/foundation/path.h"

namespace kesto {

namespace {

bool comesBefore(std::string_view left, std::string_view right) {
  return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                      [](char a, char b) { return upperAscii(a) < upperAscii(b); });
}

// Whether only the system can tell if a file of the name is there: it knows the case of
// letters beyond z, and short names.
bool isForSystem(std::string_view name) {
  return std::any_of(name.begin(), name.end(),
                     [](char c) { return c == '~' || (c & '\x80') != 0; });
}

}  // namespace

std::string rootOf(std::string_view directory) {
  std::string root(directory);
  std::replace(root.begin(), root.end(), '/', '\\');
  while (!root.empty() && root.back() == '\\') {
    root.pop_back();
  }
  return root;
}

std::string serverDirectory(std::string_view project, std::string_view server) {
  const bool whole =
      server.starts_with('\\') || server.starts_with('/') || server.substr(1, 1) == ":";
  return whole ? std::string(server) : std::string(joinPath(project, server).view());
}

std::string pathBelow(std::string_view root, std::string_view name) {
  std::string path(root);
  path += '\\';
  path += name;
  return path;
}

void FolderFacts::add(std::string_view name, const FileFacts& facts) {
  entries_.push_back({names_.size(), name.size(), facts});
  names_ += name;
}

void FolderFacts::sort() {
  const auto before = [this](const Entry& left, const Entry& right) {
    return comesBefore(nameOf(left), nameOf(right));
  };
  if (!std::is_sorted(entries_.begin(), entries_.end(), before)) {
    std::sort(entries_.begin(), entries_.end(), before);
  }
}

const FileFacts* FolderFacts::find(std::string_view name) {
  const auto is_name = [&](std::size_t at) {
    return at < entries_.size() && equalIgnoringCase(nameOf(entries_[at]), name);
  };
  if (!is_name(next_)) {
    const auto found = std::lower_bound(entries_.begin(), entries_.end(), name,
                                        [this](const Entry& entry, std::string_view wanted) {
                                          return comesBefore(nameOf(entry), wanted);
                                        });
    next_ = static_cast<std::size_t>(found - entries_.begin());
  }
  return is_name(next_) ? &entries_[next_++].facts : nullptr;
}

// Files come a folder at a time.
class GroupTree::Scan : public FileVisitor {
 public:
  Scan(GroupTree& tree, Visitor& visitor) : tree_(tree), visitor_(visitor) {}

  bool visit(const char* path) override {
    const std::string_view whole(path);
    const std::size_t end = whole.rfind('\\');
    const std::string_view name = whole.substr(end + 1);
    enter(whole.substr(0, end));
    const std::optional<FileFacts> facts = ask(*own_, directory_, name);
    if (facts) {
      visitor_.visit(path, *facts, ask(*other_, other_directory_, name));
    }
    return false;
  }

 private:
  void enter(std::string_view directory) {
    if (own_ != nullptr && directory == directory_) {
      return;
    }
    directory_ = directory;
    other_directory_ = tree_.other_root_;
    other_directory_ += directory.substr(tree_.root_.size());
    own_ = &tree_.factsIn(directory_);
    other_ = &tree_.factsIn(other_directory_);
  }
  std::optional<FileFacts> ask(FolderFacts& folder, const std::string& directory,
                               std::string_view name) {
    if (const FileFacts* facts = folder.find(name)) {
      return *facts;
    }
    return isForSystem(name) ? tree_.files_.facts(pathBelow(directory, name).c_str())
                             : std::nullopt;
  }

  GroupTree& tree_;
  Visitor& visitor_;
  // Those of the file visited last.
  std::string directory_;
  std::string other_directory_;
  FolderFacts* own_ = nullptr;
  FolderFacts* other_ = nullptr;
};

void GroupTree::scan(std::string_view filters, Visitor& visitor, WalkWatch* watch) {
  Folders folders(*this, watch);
  Scan scan(*this, visitor);
  while (!filters.empty()) {
    std::string_view mask;
    if (nextListEntry(filters, mask) && walkDirectory(folders, root_, mask, true, scan)) {
      return;
    }
  }
}

// What a folder holds, for those who walk and for those who ask for facts.
class GroupTree::Listener : public FileListener {
 public:
  Listener(const GroupTree& tree, std::string_view directory, FolderFacts* facts,
           DirectoryEntries* entries)
      : tree_(tree), directory_(directory), facts_(facts), entries_(entries) {}

  void add(DirectoryEntries::Kind kind, std::string_view name, std::string_view short_name,
           const FileFacts& facts) override {
    if (facts_ != nullptr) {
      facts_->add(name, facts);
    }
    const bool is_file = kind == DirectoryEntries::Kind::kFile;
    if (entries_ != nullptr &&
        (is_file || !equalIgnoringCase(pathBelow(directory_, name), tree_.other_root_))) {
      entries_->add(kind, name, short_name);
    }
  }

 private:
  const GroupTree& tree_;
  std::string_view directory_;
  FolderFacts* facts_;
  DirectoryEntries* entries_;
};

void GroupTree::list(const char* directory, const char* mask, DirectoryEntries& entries) {
  FolderFacts facts;
  const bool whole = mask == std::string_view("*");
  Listener listener(*this, directory, whole ? &facts : nullptr, &entries);
  files_.list(directory, mask, listener);
  if (whole) {
    facts.sort();
    folders_[directory] = std::move(facts);
  }
}

// Folders of the walked tree are listed by the walk.
FolderFacts& GroupTree::factsIn(std::string_view directory) {
  if (FolderFacts* const known = folders_.find(directory); known != nullptr) {
    return *known;
  }
  FolderFacts facts;
  Listener listener(*this, directory, &facts, nullptr);
  files_.list(std::string(directory).c_str(), "*", listener);
  facts.sort();
  FolderFacts& kept = folders_[directory];
  kept = std::move(facts);
  return kept;
}

}  // namespace kesto
