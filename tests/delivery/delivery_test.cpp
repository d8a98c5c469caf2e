// What is delivered and what is said of it, over a played disk.
#include "addon/delivery/delivery_run.h"

#include <limits>
#include <vector>

#include "addon/delivery/delivery_list.h"
#include "addon/foundation/message_box.h"
#include "doctest.h"
#include "tests/delivery/played_copies.h"
#include "tests/foundation/recorded_boxes.h"
#include "tests/ide/outline.h"

namespace kesto {
namespace {

class Watch : public CompareWatch {
 public:
  int turns_left = -1;  // and then the comparing ends
  bool goOn() override { return turns_left != 0 && turns_left-- != 0; }
};

class Bar : public CopyProgress {
 public:
  std::uint64_t all = 0;
  bool show(std::string_view, std::uint64_t, std::uint64_t total) override {
    all = total;
    return true;
  }
  void catchUp() override {}
};

class Messages : public DeliveryMessages {
 public:
  std::string begin(int) override { return ""; }
  void add(const std::string&) override {}
};

std::string typesOf(const Tableau<OneDelRep>& groups) {
  std::string types;
  for (int i = 0; i < groups.count(); ++i) {
    types += std::string(groups[i]->type.view()) + '=' + groups[i]->directory.text() +
             (groups[i]->active != 0 ? " " : "- ");
  }
  return types;
}

std::string listed(PlayedCopies& disk, const std::vector<DeliveryNode>& nodes,
                   const Tableau<OneDelRep>& groups, Tableau<Livrage>& deliveries) {
  Watch watch;
  CHECK(listDeliveries(nodes, groups, disk, watch, deliveries));
  std::string rows;
  for (int i = 0; i < deliveries.count(); ++i) {
    rows += deliveryRow(*deliveries[i]) + '\n';
  }
  return rows;
}

}  // namespace

TEST_CASE("a file is delivered when its copy is missing or differs by a byte") {
  const std::string long_text(200003, 'x');
  const auto with = [&](std::size_t at) {
    std::string text = long_text;
    text[at] = 'y';
    return text;
  };
  using File = PlayedCopies::File;
  const auto closed = [](const char* text) { return File{text, 0, 0, true}; };
  const auto claiming = [](std::uint64_t size) { return File{"12345", 0, size}; };
  const File none{"(none)"};
  const struct {
    File source;
    File delivered;
    bool needed;
  } rows[] = {{none, none, false},
              {none, {"a"}, false},
              {{"a"}, none, true},
              {{""}, none, true},
              {{""}, {""}, false},
              {{"abc", 1}, {"abc", 2}, false},
              {{"abc"}, {"abcd"}, true},
              {{"abc"}, {""}, true},
              {{long_text}, {long_text}, false},
              {{long_text}, {with(0)}, true},
              {{long_text}, {with(255)}, true},
              {{long_text}, {with(256)}, true},
              {{long_text}, {with(65536)}, true},
              {{long_text}, {with(200002)}, true},
              {closed("abc"), {"abc"}, false},
              {closed("abc"), {"ab"}, true},
              {closed("abc"), none, true},
              {{"abc"}, closed("abx"), true},
              {{"abc"}, closed("ab"), true},
              {claiming(0x100000005), {"12345"}, true},
              {claiming(0xFFFFFFFF), claiming(0xFFFFFFFF), false},
              {{"abc", 0, 0, false, false, true}, {"abc"}, true}};
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    PlayedCopies disk;
    if (row.source.bytes != none.bytes) {
      disk.files["P\\a.exe"] = row.source;
    }
    if (row.delivered.bytes != none.bytes) {
      disk.files["D\\a.exe"] = row.delivered;
    }
    Tableau<OneDelRep> groups;
    groups.append(new OneDelRep(".exe", "D"));
    Tableau<Livrage> deliveries;
    CHECK(listed(disk, {{"P\\a.exe", ".exe"}}, groups, deliveries) ==
          (row.needed ? "a.exe -> D\n" : ""));
  }
}

TEST_CASE("directories in place of files") {
  PlayedCopies disk;
  disk.directories = {"P\\in.exe", "D\\out.exe", "D\\empty.exe", "D\\both.exe", "P\\both.exe"};
  disk.files = {{"P\\out.exe", {"1"}}, {"P\\empty.exe", {""}}};
  Tableau<OneDelRep> groups;
  groups.append(new OneDelRep(".exe", "D"));
  Tableau<Livrage> deliveries;
  CHECK(listed(disk,
               {{"P\\in.exe", ".exe"},
                {"P\\out.exe", ".exe"},
                {"P\\empty.exe", ".exe"},
                {"P\\both.exe", ".exe"}},
               groups, deliveries) == "in.exe -> D\nout.exe -> D\nempty.exe -> D\n");
}

TEST_CASE("the groups are those of the nodes below the first DELIVERY") {
  const Outline tree({{0, "demo.exe", ".exe"},
                      {1, "delivery", "Group"},
                      {2, "DELIVERY", "Group"},
                      {3, "C:\\b.dll", ".dll"},
                      {4, "C:\\b.cpp", ".cpp"},
                      {3, "C:\\a.exe", ".exe"},
                      {3, "C:\\A.EXE", ".EXE"},
                      {3, "C:\\c.dll", ".dll"},
                      {0, "DELIVERY", "DELIVERY"},
                      {1, "C:\\d.lib", ".lib"}});
  DeliveryNodes nodes = findDeliveryNodes(tree);
  REQUIRE(nodes.nodes.size() == 4);
  CHECK(nodes.nodes[1].file == "C:\\a.exe");

  DeliveryProjectOptions options;
  for (const char* type : {".old", ".exe", ".exe"}) {
    options.groups.append(new OneDelRep(type, "D"));
  }
  options.groups[1]->active = 0;
  options.rebuild(nodes);
  CHECK(typesOf(options.groups) == ".EXE= .dll= .exe=D- ");

  // Without the node there are none, but what is known of them comes back with it.
  const DeliveryNodes none = findDeliveryNodes(Outline({{0, "demo.exe", ".exe"}}));
  options.rebuild(none);
  CHECK(options.groups.count() == 0);
  nodes.nodes.resize(2);
  options.rebuild(nodes);
  CHECK(typesOf(options.groups) == ".dll= .exe=D- ");
  // Without a project, not.
  for (const DeliveryNodes& before : {nodes, none}) {
    options.groups[1]->directory = "E";
    options.rebuild(before);
    options.rebuild(DeliveryNodes());
    options.rebuild(nodes);
    CHECK(typesOf(options.groups) == ".dll= .exe= ");
  }
}

TEST_CASE("sizes count as far as 32 bits go, and a comparing that is ended lists no more") {
  PlayedCopies disk;
  disk.directories = {"D"};
  disk.files = {{"P\\a.exe", {"first"}}, {"P\\big.exe", {"1"}}};
  disk.files["P\\big.exe"].claimed = std::numeric_limits<std::uint64_t>::max();
  Tableau<OneDelRep> groups;
  groups.append(new OneDelRep(".exe", "D"));
  const std::vector<DeliveryNode> nodes = {{"P\\a.exe", ".exe"}, {"P\\big.exe", ".exe"}};
  Tableau<Livrage> deliveries;
  CHECK(listed(disk, nodes, groups, deliveries) == "a.exe -> D\nbig.exe -> D\n");

  // What is gone by now counts nothing.
  disk.files.erase("P\\a.exe");
  Bar bar;
  Messages messages;
  const DeliveryOutcome outcome = deliver(deliveries, disk, bar, messages, nullptr);
  CHECK(outcome.failed);
  CHECK(outcome.report == "P\\big.exe delivered to D\n");
  CHECK(bar.all == 0xFFFFFFFF);
  CHECK(deliveries[1]->size == 0xFFFFFFFF);
  CHECK(takeBoxes().size() == 1);
  CHECK(deliveryHeader("", "d", "t", 1) == " : 1 file (d , t)");

  Watch watch;
  watch.turns_left = 0;
  disk.files["D\\big.exe"] = disk.files["P\\big.exe"];
  CHECK(!listDeliveries({nodes[1]}, groups, disk, watch, deliveries));
  CHECK(deliveries.count() == 2);
}

}  // namespace kesto
