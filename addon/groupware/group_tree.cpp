#include "addon/groupware/group_tree.h"

#include <algorithm>

#include "addon/foundation/directory_walk.h"
#include "addon/foundation/path.h"

namespace kesto {

namespace {

std::string upper(std::string_view name) {
  std::string text(name);
  upperAscii(text.data());
  return text;
}

// Only the system knows the upper case of letters beyond z.
bool isAscii(std::string_view name) {
  return std::all_of(name.begin(), name.end(), [](char c) { return (c & '\x80') == 0; });
}

class ScanVisitor : public FileVisitor {
 public:
  ScanVisitor(GroupTree& tree, std::string_view root, std::string_view other_root,
              GroupTree::Visitor& visitor)
      : tree_(tree), root_(root), other_root_(other_root), visitor_(visitor) {}

  bool visit(const char* path) override {
    const std::string_view whole(path);
    if (const std::optional<FileFacts> facts = tree_.facts(whole)) {
      const std::string other = pathBelow(other_root_, whole.substr(root_.size() + 1));
      visitor_.visit(std::string(whole), *facts, tree_.facts(other));
    }
    return false;
  }

 private:
  GroupTree& tree_;
  std::string_view root_;
  std::string_view other_root_;
  GroupTree::Visitor& visitor_;
};

}  // namespace

std::string rootOf(std::string_view directory) {
  std::string root(directory);
  std::replace(root.begin(), root.end(), '/', '\\');
  while (!root.empty() && root.back() == '\\') {
    root.pop_back();
  }
  return root;
}

std::string pathBelow(std::string_view root, std::string_view name) {
  std::string path(root);
  path += '\\';
  path += name;
  return path;
}

void GroupTree::scan(std::string_view filters, Visitor& visitor, WalkWatch* watch) {
  Folders folders(*this, watch);
  ScanVisitor scanning(*this, root_, other_root_, visitor);
  while (!filters.empty()) {
    std::string_view mask;
    if (nextListEntry(filters, mask) && walkDirectory(folders, root_, mask, true, scanning)) {
      return;
    }
  }
}

void GroupTree::list(const char* directory, const char* mask, DirectoryEntries& entries) {
  if (mask == std::string_view("*")) {
    listingOf(directory, &entries);
    return;
  }
  std::vector<ListedFile> found;
  files_.list(directory, mask, found);
  for (const ListedFile& file : found) {
    entries.add(file.kind, file.name, file.short_name);
  }
}

std::optional<FileFacts> GroupTree::facts(std::string_view path) {
  const std::string_view name = fileNamePart(path);
  const Listing& listing = listingOf(directoryPart(path), nullptr);
  const auto found = listing.find(upper(name));
  if (found != listing.end()) {
    return found->second;
  }
  return isAscii(name) ? std::nullopt : files_.facts(std::string(path).c_str());
}

// The walk asks for the entries of a folder once, and before anybody asks for facts of it;
// the other tree's folders are asked for facts alone.
GroupTree::Listing& GroupTree::listingOf(std::string_view directory, DirectoryEntries* entries) {
  const auto known = listings_.find(directory);
  if (known != listings_.end() && entries == nullptr) {
    return known->second;
  }
  std::vector<ListedFile> found;
  files_.list(std::string(directory).c_str(), "*", found);
  Listing listing;
  for (const ListedFile& file : found) {
    listing[upper(file.name)] = file.facts;
    if (!file.short_name.empty()) {
      listing.emplace(upper(file.short_name), file.facts);
    }
    if (entries != nullptr && !equalIgnoringCase(pathBelow(directory, file.name), other_root_)) {
      entries->add(file.kind, file.name, file.short_name);
    }
  }
  return listings_[std::string(directory)] = std::move(listing);
}

}  // namespace kesto
