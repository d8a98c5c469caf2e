#include "workbench/project/project_file.h"

#include <string>
#include <vector>

#include "doctest.h"
#include "tests/data_file.h"
#include "workbench/project/project.h"

using namespace workbench;

namespace {

constexpr char kFolder[] = "C:\\work\\app";

std::string dataFile(const std::string& name) {
  return tests::contents(std::string(TEST_DATA_DIR) + "/workbench/data/" + name);
}

ProjectTree readGood(const std::string& bytes) {
  ProjectTree tree;
  ProjectFault fault;
  const bool good = readProjectFile(bytes, kFolder, &tree, &fault);
  CAPTURE(fault.line);
  CAPTURE(fault.reason);
  REQUIRE(good);
  return tree;
}

std::string lines(const std::vector<std::string>& parts) {
  std::string result = "Workbench project 1\n";
  for (const std::string& part : parts) {
    result += part + "\n";
  }
  return result;
}

// The edits that lead from each NAME.ide to its NAME.edited.ide.
void edit(Project& project) {
  unsigned int app = project.find("C:\\work\\app\\app.exe");
  if (app == 0) {
    app = project.add(0, "C:\\work\\app\\app.exe", ".exe");
  }
  project.remove(project.find("c:/work/app/SRC/main.cpp"));
  project.describe(app, "The tool");
  project.describe(project.find("C:\\work\\common\\util.cpp"), "Shared");
  project.setNodeOption(app, kIncludePathKind, "inc");
  project.add(app, project.fullName(app, "src\\new.cpp", ".cpp"), ".cpp");
  project.add(0, "D:\\far\\away.lib", ".lib");
  project.commitOption(project.prepareOption("Name", std::string("new\0", 4)));
  project.commitOption(project.prepareOption("Added", std::string("\7\0\0\0", 4)));
  project.prepareOption("Old", "never committed");
}

}  // namespace

TEST_CASE("a file comes back as it was, and edits leave the rest in its place") {
  for (const std::string name : {"kept", "plain"}) {
    CAPTURE(name);
    const std::string bytes = dataFile(name + ".ide");
    ProjectTree tree = readGood(bytes);
    CHECK(writeProjectFile(tree, kFolder) == bytes);
    Project project;
    project.load("C:\\work\\app\\app.ide", tree);
    CHECK_FALSE(project.modified());
    edit(project);
    CHECK(project.modified());
    const std::string edited = writeProjectFile(project.tree(), kFolder);
    CHECK(edited == dataFile(name + ".edited.ide"));
    CHECK(writeProjectFile(readGood(edited), kFolder) == edited);
  }
}

TEST_CASE("what is delivered is a file, whatever its type") {
  const std::string bytes =
      lines({"node \"DELIVERY\" \"DELIVERY\" {", "  node \"doc\\\\a.txt\" \"Manual\"", "}",
             "node \"doc\" \"Manual\"", "end"});
  const ProjectTree tree = readGood(bytes);
  CHECK(tree.find(2)->name == "C:\\work\\app\\doc\\a.txt");
  CHECK(tree.find(3)->name == "doc");
  CHECK(writeProjectFile(tree, kFolder) == bytes);
}

TEST_CASE("damaged files are refused with line and reason") {
  const struct {
    std::string bytes;
    int line;
    const char* reason;  // a part of it
  } cases[] = {
      {"", 1, "not a project"},
      {"<ide version=1>\nend\n", 1, "not a project"},
      {"Workbench project \nend\n", 1, "version"},
      {"Workbench project 0\nend\n", 1, "version"},
      {"Workbench project 1x\nend\n", 1, "version"},
      {"Workbench project 99999999999\nend\n", 1, "version"},
      {"Workbench project 2\nend\n", 1, "newer"},
      {lines({}), 2, "part of it is missing"},
      {lines({"node \"a\" \".exe\" {", "}"}), 4, "part of it is missing"},
      {lines({"node \"a\" \".exe\" {", "end"}), 4, "part of it is missing"},
      {lines({"}", "end"}), 2, "closes nothing"},
      {lines({"end", "node \"a\" \".c\""}), 3, "after the line"},
      {lines({"what {", "end"}), 2, "not closed"},
      {lines({"build", "end"}), 2, "command"},
      {lines({"build make", "end"}), 2, "command"},
      {lines({"build \"a\"", "build \"b\"", "end"}), 3, "already"},
      {lines({"build \"a", "end"}), 2, "quote"},
      {lines({"build \"a\\q\"", "end"}), 2, "escape"},
      {lines({"build \"a\\x4\"", "end"}), 2, "escape"},
      {lines({"build \"a\"\"b\"", "end"}), 2, "blank"},
      {lines({"option \"a\"", "end"}), 2, "value"},
      {lines({"option \"a\" hex 1", "end"}), 2, "hexadecimal"},
      {lines({"option \"a\" hex 0g", "end"}), 2, "hexadecimal"},
      {lines({"option \"a\" \"1\"", "option \"a\" \"2\"", "end"}), 3, "already"},
      {lines({"node \"a\"", "end"}), 2, "name and a type"},
      {lines({"node \"\" \".c\"", "end"}), 2, "name and a type"},
      {lines({"node \"a\" \".c\" {", "path x \"b\"", "}", "end"}), 3, "kind"},
      {lines({"node \"a\" \".c\" {", "path -1 \"b\"", "}", "end"}), 3, "kind"},
      {lines({"node \"a\" \".c\" {", "path 1 \"b\"", "path 1 \"c\"", "}", "end"}), 4, "already"},
      {lines({"node \"a\" \".c\" {", "description \"b\"", "description \"c\"", "}", "end"}), 4,
       "already"},
  };
  for (const auto& each : cases) {
    CAPTURE(each.bytes);
    ProjectTree tree;
    ProjectFault fault;
    CHECK_FALSE(readProjectFile(each.bytes, kFolder, &tree, &fault));
    CHECK(fault.line == each.line);
    CHECK(fault.reason.find(each.reason) != std::string::npos);
  }
}

TEST_CASE("a file that was cut anywhere is refused") {
  for (const std::string name : {"kept.ide", "kept.edited.ide", "plain.ide"}) {
    const std::string bytes = dataFile(name);
    // Without the end of its last line it is still whole.
    const std::size_t whole = bytes.find_last_of('d') + 1;
    for (std::size_t size = 0; size < whole; ++size) {
      ProjectTree tree;
      ProjectFault fault;
      CAPTURE(size);
      CHECK_FALSE(readProjectFile(std::string_view(bytes).substr(0, size), kFolder, &tree, &fault));
    }
    // Bytes gone from the middle may leave a good file; reading them must end well.
    for (std::size_t at = 0; at < bytes.size(); ++at) {
      std::string damaged = bytes;
      damaged.erase(at, 1);
      ProjectTree tree;
      ProjectFault fault;
      if (readProjectFile(damaged, kFolder, &tree, &fault)) {
        CHECK_FALSE(writeProjectFile(tree, kFolder).empty());
      }
    }
  }
}

TEST_CASE("bounds of a project") {
  std::vector<std::string> deep;
  for (int i = 0; i < kDeepestNode; ++i) {
    deep.push_back("node \"n\" \"Group\" {");
  }
  deep.insert(deep.end(), kDeepestNode, "}");
  deep.push_back("end");
  CHECK(readGood(lines(deep)).nodes.size() == kDeepestNode);
  deep.insert(deep.begin(), "node \"n\" \"Group\" {");
  ProjectTree tree;
  ProjectFault fault;
  CHECK_FALSE(readProjectFile(lines(deep), kFolder, &tree, &fault));
  CHECK(fault.line == kDeepestNode + 2);

  Project project;
  project.load("C:\\work\\app\\app.ide", ProjectTree());
  unsigned int parent = 0;
  for (int i = 0; i < kDeepestNode; ++i) {
    parent = project.add(parent, "n", "Group");
  }
  REQUIRE(parent != 0);
  CHECK(project.add(parent, "n", "Group") == 0);

  std::string many = "Workbench project 1\n";
  for (std::size_t i = 0; i <= kMostNodes; ++i) {
    many += "node \"n\" \".c\"\n";
  }
  ProjectTree full;
  CHECK_FALSE(readProjectFile(many + "end\n", kFolder, &full, &fault));
  CHECK(fault.line == static_cast<int>(kMostNodes) + 2);
}

TEST_CASE("every byte survives in options and texts") {
  std::string bytes;
  for (int i = 0; i < 256; ++i) {
    bytes += static_cast<char>(i);
  }
  Project project;
  project.load("C:\\work\\app\\app.ide", ProjectTree());
  const std::vector<std::string> values = {
      "",    std::string(1, '\0'), "text", std::string("text\0", 5), "line\nline",
      bytes, bytes + '\0'};
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string name = std::string(1, static_cast<char>('a' + i)) + " \"\\\x01";
    project.commitOption(project.prepareOption(name, values[i]));
  }
  project.describe(project.add(0, "x", "Group"), bytes);
  project.setBuild(bytes);
  Project again;
  again.load("C:\\work\\app\\app.ide", readGood(writeProjectFile(project.tree(), kFolder)));
  CHECK(again.tree().options == project.tree().options);
  CHECK(again.node(again.top())->description == bytes);
  CHECK(again.build() == bytes);
}

TEST_CASE("what counts as a change") {
  Project project;
  project.load("C:\\work\\app\\app.ide", readGood(dataFile("kept.ide")));
  const unsigned int app = project.top();
  project.rename(app, project.node(app)->name);
  project.describe(app, "The program");
  project.setNodeOption(app, kSourcePathKind, "src");
  project.setNodeOption(app, kIncludePathKind, "");
  project.setBuild(project.build());
  project.commitOption(project.prepareOption("Old", *project.option("Old")));
  CHECK_FALSE(project.modified());
  project.setNodeOption(app, kSourcePathKind, "");
  CHECK(project.modified());
  project.markSaved();
  project.commitOption(project.prepareOption("Empty", ""));
  CHECK(project.modified());
  project.markSaved();
  CHECK_FALSE(project.remove(9999));
  CHECK_FALSE(project.modified());
}
