#include "workbench/project/project.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "doctest.h"
#include "workbench/app/command_line.h"
#include "workbench/project/folder_walk.h"
#include "workbench/windows/path_text.h"

using namespace workbench;

namespace {

// Folders by path; a name ending in "\" is a sub-folder, one starting with "~" hidden.
class MemoryLister final : public FolderLister {
 public:
  bool list(const std::string& folder, std::vector<FolderEntry>* entries) override {
    const auto found = folders.find(target(folder));
    if (found == folders.end()) {
      return false;
    }
    for (const std::string& name : found->second) {
      const bool is_folder = name.back() == '\\';
      entries->push_back(
          {is_folder ? name.substr(0, name.size() - 1) : name, is_folder, name[0] == '~'});
    }
    return true;
  }
  std::uint64_t identity(const std::string& folder) override {
    return std::hash<std::string>()(target(folder)) | 1;
  }

  std::map<std::string, std::vector<std::string>> folders;
  std::map<std::string, std::string> links;

 private:
  std::string target(const std::string& folder) const {
    const auto found = links.find(folder);
    return found == links.end() ? folder : found->second;
  }
};

void list(const FolderContent& content, std::vector<std::string>* names) {
  names->push_back(content.path);
  names->insert(names->end(), content.files.begin(), content.files.end());
  for (const FolderContent& folder : content.folders) {
    list(folder, names);
  }
}

std::vector<std::string> namesOf(const FolderContent& content) {
  std::vector<std::string> names;
  list(content, &names);
  return names;
}

FolderContent sample() {
  MemoryLister lister;
  lister.folders["C:\\P"] = {"z.h",     "src\\", "A.CPP",     "notes.doc", "b.cpp",    ".git\\",
                             "Debug\\", "inc\\", "~hidden\\", "empty\\",   "Include\\"};
  lister.folders["C:\\P\\src"] = {"main.cpp", "deep\\", "loop\\"};
  lister.folders["C:\\P\\src\\deep"] = {"d.rc"};
  lister.folders["C:\\P\\inc"] = {"i.hpp"};
  lister.folders["C:\\P\\Include"] = {"j.h"};
  lister.folders["C:\\P\\empty"] = {"picture.bmp"};
  lister.folders["C:\\P\\Debug"] = lister.folders["C:\\P\\.git"] =
      lister.folders["C:\\P\\~hidden"] = {"never.cpp"};
  lister.links["C:\\P\\src\\loop"] = "C:\\P";
  FolderContent content;
  REQUIRE(walkFolder(lister, "C:\\P", WalkLimits(), &content));
  return content;
}

}  // namespace

TEST_CASE("a folder is walked in the order of names, files first, sources only") {
  CHECK(namesOf(sample()) ==
        std::vector<std::string>{"C:\\P", "C:\\P\\A.CPP", "C:\\P\\b.cpp", "C:\\P\\z.h",
                                 "C:\\P\\inc", "C:\\P\\inc\\i.hpp", "C:\\P\\Include",
                                 "C:\\P\\Include\\j.h", "C:\\P\\src", "C:\\P\\src\\main.cpp",
                                 "C:\\P\\src\\deep", "C:\\P\\src\\deep\\d.rc"});
}

TEST_CASE("the walk keeps its limits") {
  MemoryLister lister;
  std::string path = "C:\\P";
  for (int i = 0; i < 5; ++i) {
    lister.folders[path] = {"a.c", "b.c", "sub\\"};
    path += "\\sub";
  }
  const struct {
    WalkLimits limits;
    std::size_t names;  // folders and files together
  } cases[] = {
      {{16, 4000, 20000}, 15}, {{1, 4000, 20000}, 6}, {{16, 2, 20000}, 6}, {{16, 4000, 3}, 5}};
  for (const auto& each : cases) {
    FolderContent content;
    CHECK(walkFolder(lister, "C:\\P", each.limits, &content));
    CHECK(namesOf(content).size() == each.names);
  }
  FolderContent content;
  CHECK_FALSE(walkFolder(lister, "C:\\missing", WalkLimits(), &content));
}

TEST_CASE("a project is a tree of the folder's sources with its paths") {
  Project project;
  CHECK(project.top() == 0);
  CHECK(project.add(0, "x", ".x") == 0);
  project.load(sample());
  CHECK(project.file() == "C:\\P\\P.ide");
  const NodeInfo* top = project.node(project.top());
  REQUIRE(top != nullptr);
  CHECK(top->type[0] != '.');
  CHECK(project.node(project.firstChild(top->id))->name == "C:\\P\\A.CPP");
  CHECK(project.node(project.firstChild(top->id))->type == ".CPP");
  CHECK(project.nextSibling(top->id) == 0);

  const unsigned int deep = project.find("c:/p/SRC/deep/D.rc");
  REQUIRE(deep != 0);
  CHECK(project.depth(deep) == 3);
  std::string folders;
  CHECK(project.nodeFolders(deep, kIncludePathKind, &folders));
  CHECK(folders == "C:\\P\\inc;C:\\P\\Include");
  CHECK(project.nodeFolders(top->id, kSourcePathKind, &folders));
  CHECK(folders == "C:\\P\\src");
  CHECK_FALSE(project.nodeFolders(deep, 2, &folders));
  CHECK_FALSE(project.nodeFolders(9999, kIncludePathKind, &folders));
  CHECK_FALSE(project.modified());
}

TEST_CASE("nodes come and go with their children") {
  Project project;
  project.load(sample());
  const unsigned int source = project.find("C:\\P\\src");
  const unsigned int file = project.find("C:\\P\\src\\main.cpp");
  const std::size_t count = project.nodes().size();
  const unsigned int added = project.add(source, "C:\\P\\new.cpp", ".cpp");
  CHECK(project.nodes().size() == count + 1);
  CHECK(project.nextSibling(project.find("C:\\P\\src\\deep")) == added);
  CHECK(project.add(9999, "x", ".x") == 0);
  CHECK(project.remove(source));
  CHECK(project.nodes().size() == count - 4);
  CHECK_FALSE(project.remove(source));
  CHECK(project.node(file) == nullptr);
  CHECK(project.add(0, "C:\\P\\other", "Target") > added);
}

TEST_CASE("what is delivered stands in one container under one name, and holds nothing itself") {
  Project project;
  project.load("C:\\p\\p.ide", ProjectTree());
  const unsigned int exe = project.add(0, "C:\\p\\a.exe", ".exe");
  CHECK(project.add(0, "Release", "DELIVERY") == 0);
  const unsigned int delivery = project.add(0, "DELIVERY", "DELIVERY");
  CHECK(project.add(exe, "DELIVERY", "DELIVERY") == 0);
  CHECK_FALSE(project.rename(delivery, "Release"));
  const unsigned int delivered = project.add(delivery, "C:\\p\\a.exe", ".exe");
  const unsigned int source = project.add(exe, "C:\\p\\a.cpp", ".cpp");
  CHECK(project.containerFor(source) == exe);
  CHECK(project.containerFor(delivered) == delivery);
  CHECK(project.containerFor(0) == exe);
  project.remove(delivery);
  CHECK(project.add(0, "DELIVERY", "DELIVERY") != 0);
}

TEST_CASE("options hold bytes, change at commit, and go with their project") {
  const std::string bytes("a\0b", 3);
  Project project;
  CHECK(project.prepareOption("N", bytes) == 0);
  project.load(sample());
  const unsigned int change = project.prepareOption("N", bytes);
  CHECK(project.option("N") == nullptr);
  CHECK_FALSE(project.modified());
  CHECK(project.commitOption(change));
  CHECK_FALSE(project.commitOption(change));
  REQUIRE(project.option("N") != nullptr);
  CHECK(*project.option("N") == bytes);
  CHECK(project.option("n") == nullptr);
  const unsigned int lost = project.prepareOption("M", bytes);
  project.load(sample());
  CHECK(project.option("N") == nullptr);
  CHECK_FALSE(project.commitOption(lost));
}

TEST_CASE("paths") {
  const struct {
    std::string_view path;
    std::string_view folder;
    std::string_view name;
    std::string_view extension;
    bool absolute;
  } cases[] = {
      {"C:\\a\\b.CPP", "C:\\a", "b.CPP", ".CPP", true},
      {"C:\\b", "C:\\", "b", "", true},
      {"\\\\host\\share\\x.h", "\\\\host\\share", "x.h", ".h", true},
      {"a/b.tar.gz", "a", "b.tar.gz", ".gz", false},
      {"b", "", "b", "", false},
      {"C:b", "", "C:b", "", false},
      {"C:\\a.b\\c", "C:\\a.b", "c", "", true},
  };
  for (const auto& each : cases) {
    CAPTURE(each.path);
    CHECK(folderOf(each.path) == each.folder);
    CHECK(fileName(each.path) == each.name);
    CHECK(extensionOf(each.path) == each.extension);
    CHECK(isAbsolutePath(each.path) == each.absolute);
  }
  CHECK(samePath("C:\\\xC9t\xE9.c", "c:/\xE9T\xC9.C"));
  CHECK_FALSE(samePath("C:\\\xD7", "C:\\\xF7"));
  const struct {
    std::string_view from, to, relative;
  } ways[] = {
      {"C:\\p\\a", "C:\\P\\A\\b\\c.h", "b\\c.h"},
      {"C:\\p\\a", "c:\\p\\x.h", "..\\x.h"},
      {"C:\\p\\a", "C:\\p\\a", "."},
      {"C:\\p\\a", "C:\\q\\x.h", "C:\\q\\x.h"},
      {"C:\\p\\a", "D:\\p\\a\\x.h", "D:\\p\\a\\x.h"},
      {"C:\\", "C:\\x.h", "x.h"},
      {"\\\\h\\s\\p", "\\\\h\\s\\p\\x", "x"},
      {"\\\\h\\s\\p", "\\\\h\\s\\q", "\\\\h\\s\\q"},
  };
  for (const auto& way : ways) {
    CAPTURE(way.to);
    CHECK(relativePath(way.from, way.to) == way.relative);
  }
  CHECK(normalPath("C:/a/./b\\..\\..\\c//d") == "C:\\c\\d");
  CHECK(normalPath("C:\\a\\..\\..\\b") == "C:\\..\\b");
  CHECK(normalPath("C:\\a\\..") == "C:\\");
  CHECK(normalPath("\\\\h\\s\\a\\..\\b") == "\\\\h\\s\\b");
  CHECK(joinPath("C:\\", "a") == "C:\\a");
  CHECK(joinPath("C:\\a", "b") == "C:\\a\\b");
}

TEST_CASE("the command line") {
  const struct {
    std::vector<std::string> arguments;
    bool good;
    std::string path, addon, script;
  } cases[] = {
      {{}, true, "", "", ""},
      {{"C:\\P"}, true, "C:\\P", "", ""},
      {{"--script", "-", "C:\\P", "--addon", "x.dll"}, true, "C:\\P", "x.dll", "-"},
      {{"--addon", "", "C:\\P"}, true, "C:\\P", "", ""},
      {{"--addon"}, false, "", "", ""},
      {{"a", "b"}, false, "a", "", ""},
      {{"--what"}, false, "", "", ""},
  };
  for (const auto& each : cases) {
    CommandLine line;
    std::string reason;
    CHECK(parseCommandLine(each.arguments, &line, &reason) == each.good);
    CHECK(reason.empty() == each.good);
    CHECK(line.path == each.path);
    CHECK(line.addon == each.addon);
    CHECK(line.script == each.script);
    CHECK(line.own_addon == (each.arguments.size() < 3));
  }
}
