#include "addon/groupware/quick_add.h"

#include "doctest.h"

namespace {

using kesto::ContainerLevel;
using kesto::QuickAddFields;

// 1 the top, 2 in it, 3 in 2, 4 beside 1. What is added, "PARENT NAME TYPE", is 9.
struct Tree : kesto::NodeAdding {
  std::string added;
  std::string refused;  // a type

  unsigned top() const override { return 1; }
  unsigned parent(unsigned node) const override {
    return node == 2 ? 1 : node == 3 ? 2 : node == 5 ? 4 : 0;
  }
  unsigned add(unsigned parent, const std::string& name, const std::string& type) override {
    added += std::to_string(parent) + ' ' + name + ' ' + type + ';';
    return type == refused ? 0 : 9;
  }
};

constexpr ContainerLevel kSibling = ContainerLevel::kSibling;
constexpr ContainerLevel kParent = ContainerLevel::kParent;
constexpr ContainerLevel kRoot = ContainerLevel::kRoot;

}  // namespace

TEST_CASE("a new node stands where it was asked for, under the name that was meant") {
  const struct {
    unsigned current;
    QuickAddFields fields;
    const char* added;
    const char* refusal;  // null: done
  } rows[] = {
      {3, {"util"}, "2 util.cpp ;", nullptr},
      {2, {".profile"}, "1 .profile ;", nullptr},
      {2, {"..\\util"}, "1 ..\\util ;", nullptr},
      {3, {"util", true, "Pool", kSibling}, "2 Pool SourcePool;9 util.cpp ;", nullptr},
      {3, {"util", true, "Pool", kParent}, "1 Pool SourcePool;9 util.cpp ;", nullptr},
      {2, {"util", true, "Pool", kParent}, "1 Pool SourcePool;9 util.cpp ;", nullptr},
      {3, {"util", true, "Pool", kRoot}, "1 Pool SourcePool;9 util.cpp ;", nullptr},
      {1, {"util", true, "Pool", kRoot}, "1 Pool SourcePool;9 util.cpp ;", nullptr},
      {3, {"", true, "", kRoot}, "", "You should specify a node name !"},
      {3, {"util", true, "", kRoot}, "", "You should specify a container name !"},
      {1, {"util"}, "", "No way to get parent node"},
      {1, {"util", true, "", kSibling}, "", "No way to get parent node"},
      {5, {"util", true, "Pool", kParent}, "", "No way to get parent node"},
      {0, {"util", true, "Pool", kRoot}, "", "No way to get parent node"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.current);
    CAPTURE(row.fields.name);
    CAPTURE(row.fields.container);
    Tree tree;
    tree.refused = "none";
    const kesto::QuickAddResult result = quickAdd(tree, row.current, row.fields);
    CHECK(tree.added == row.added);
    CHECK(result.node == (row.refusal == nullptr ? 9 : 0));
    const char* refusal = refusalText(result.refusal);
    CHECK(std::string(refusal != nullptr ? refusal : "") ==
          (row.refusal != nullptr ? row.refusal : ""));
  }
}

TEST_CASE("what the IDE refuses is not there") {
  Tree tree;
  tree.refused = "SourcePool";
  const QuickAddFields fields = {"util", true, "Pool", kSibling};
  CHECK(std::string(refusalText(quickAdd(tree, 3, fields).refusal)) ==
        "No way to create container");
  CHECK(tree.added == "2 Pool SourcePool;");
  tree.refused = "";
  const kesto::QuickAddResult result = quickAdd(tree, 3, fields);
  CHECK(refusalText(result.refusal) == nullptr);
  CHECK(result.node == 0);
}
