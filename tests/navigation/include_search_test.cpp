#include "addon/navigation/include_search.h"

#include <map>
#include <set>
#include <string>
#include <vector>

#include "addon/foundation/path.h"
#include "doctest.h"

namespace kesto {

namespace {

class FakeDisk : public DirectoryLister, public FileLookup {
 public:
  void file(const std::string& path) { files_.insert(path); }
  void directory(const std::string& path, std::vector<std::string> names) {
    directories_[path] = std::move(names);
  }
  // Every directory of the drive C holds two more, for ever.
  void makeEndless() { endless_ = true; }

  bool isFile(const char* path) override { return files_.count(path) > 0; }
  void list(const char* directory, const char* /*mask*/, DirectoryEntries& entries) override {
    ++listed;
    const std::vector<std::string> found = endless_ && directory[0] == 'C'
                                               ? std::vector<std::string>{"loop", "more"}
                                               : directories_[directory];
    for (const std::string& name : found) {
      entries.add(
          name == "link" ? DirectoryEntries::Kind::kLink : DirectoryEntries::Kind::kDirectory,
          name);
    }
  }
  int listed = 0;

 private:
  std::set<std::string> files_;
  std::map<std::string, std::vector<std::string>> directories_;
  bool endless_ = false;
};

std::string find(FakeDisk& disk, std::string_view path, std::string_view name) {
  String found("untouched");
  Folders folders(disk);
  const bool success = findInclude(folders, disk, path, name, found);
  CHECK(success == !(found == "untouched"));
  return found.text();
}

}  // namespace

TEST_CASE("a header is sought in each directory, then below it, depth first") {
  FakeDisk disk;
  disk.directory("C:\\P", {".git", "link", "b", "a"});
  disk.file("C:\\P\\link\\x.h");
  disk.directory("C:\\P\\b", {"deep"});
  disk.file("C:\\P\\b\\deep\\x.h");
  disk.file("C:\\P\\a\\x.h");
  disk.file("C:\\P\\a\\y.h");
  disk.file("C:\\P\\.git\\z.h");
  disk.file("D:\\inc\\x.h");
  disk.file("D:\\inc\\z.h");
  const struct {
    const char *path, *name, *found;
  } cases[] = {
      {"C:\\P;D:\\inc", "x.h", "C:\\P\\b\\deep\\x.h"},
      {"D:\\inc;C:\\P", "x.h", "D:\\inc\\x.h"},
      {"C:\\P;D:\\inc", "y.h", "C:\\P\\a\\y.h"},
      {"C:\\P;;D:\\inc\\", "z.h", "D:\\inc\\z.h"},
      {"C:\\P", "deep", "untouched"},  // a directory is no answer
      {"C:\\P", "", "untouched"},
      {"", "x.h", "untouched"},
  };
  for (const auto& c : cases) {
    CAPTURE(c.path);
    CAPTURE(c.name);
    CHECK(find(disk, c.path, c.name) == c.found);
  }
}

// Those that stand on the path are looked into all the same, but for what is below them.
TEST_CASE("directories without end leave the path's own") {
  FakeDisk disk;
  disk.makeEndless();
  disk.file("D:\\inc\\x.h");
  disk.directory("D:\\inc", {"sub"});
  disk.file("D:\\inc\\sub\\y.h");
  CHECK(find(disk, "C:\\P;C:\\Q;D:\\inc", "x.h") == "D:\\inc\\x.h");
  CHECK(disk.listed == kDirectoryLimit);
  CHECK(find(disk, "C:\\P;D:\\inc", "y.h") == "untouched");
}

TEST_CASE("the search path") {
  CHECK(includeSearchPath("C:\\P", "D:\\inc;E:\\") == "C:\\P;D:\\inc;E:\\");
  CHECK(includeSearchPath("C:\\P", "") == "C:\\P");
}

}  // namespace kesto
