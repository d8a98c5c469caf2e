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
  std::string all;
  std::string begin(int files) override {
    const std::string header = deliveryHeader("demo", "1/2/97", "3:04:05 PM", files);
    add(header);
    return header;
  }
  void add(const std::string& text) override { all += text + '\n'; }
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

TEST_CASE("a delivery from the selection to the report") {
  PlayedCopies disk;
  disk.directories = {"D", "L"};
  disk.files = {{"P\\a.exe", {"first"}}, {"Q\\a.exe", {"other"}}, {"P\\b.exe", {"same"}},
                {"D\\b.exe", {"same"}},  {"P\\c.dll", {"1"}},     {"P\\d.lib", {"12"}},
                {"P\\big.exe", {"1"}},   {"P\\plain.txt", {"1"}}};
  disk.files["P\\big.exe"].claimed = std::numeric_limits<std::uint64_t>::max();
  Tableau<OneDelRep> groups;
  groups.append(new OneDelRep(".exe", "D"));
  groups.append(new OneDelRep(".dll", "nowhere"));
  groups.append(new OneDelRep(".lib", "L"));
  CHECK(groupWithoutDirectory(groups, disk) == groups[1]);
  groups[1]->active = 0;
  CHECK(groupWithoutDirectory(groups, disk) == groups[1]);
  groups[1]->directory = "D";
  CHECK(groupWithoutDirectory(groups, disk) == nullptr);

  const std::vector<DeliveryNode> nodes = {{"P\\a.exe", ".exe"},     {"P\\b.exe", ".exe"},
                                           {"P\\c.dll", ".dll"},     {"P\\gone.exe", ".exe"},
                                           {"P\\big.exe", ".exe"},   {"P\\d.lib", ".lib"},
                                           {"P\\plain.txt", ".txt"}, {"Q\\a.exe", ".exe"}};
  Tableau<Livrage> deliveries;
  CHECK(listed(disk, nodes, groups, deliveries) ==
        "a.exe -> D\nbig.exe -> D\nd.lib -> L\na.exe -> D\n");

  Bar bar;
  Messages messages;
  const DeliveryOutcome outcome = deliver(deliveries, disk, bar, messages, nullptr);
  CHECK(!outcome.failed);
  CHECK(!outcome.abandoned);
  CHECK(outcome.subject == "Delivery : demo : 4 files (1/2/97 , 3:04:05 PM)");
  CHECK(outcome.report ==
        "P\\a.exe delivered to D\nP\\big.exe delivered to D\n"
        "P\\d.lib delivered to L\nQ\\a.exe delivered to D\n");
  CHECK(messages.all ==
        "demo : 4 files (1/2/97 , 3:04:05 PM)\nP\\a.exe delivered\n"
        "P\\big.exe delivered\nP\\d.lib delivered\nQ\\a.exe delivered\n");
  CHECK(deliveries[1]->size == 0xFFFFFFFF);
  CHECK(bar.all == 5ULL + 0xFFFFFFFF + 2 + 5);
  CHECK(disk.text("D\\a.exe") == "other");
  CHECK(takeBoxes().empty());

  // One that fails has no line, and the others go on.
  disk.files.erase("P\\a.exe");
  Messages of_second;
  const DeliveryOutcome second = deliver(deliveries, disk, bar, of_second, nullptr);
  CHECK(second.failed);
  CHECK(second.report.find("P\\a.exe") == std::string::npos);
  CHECK(second.report.find("Q\\a.exe delivered to D\n") != std::string::npos);
  CHECK(deliveries[0]->size == 0);
  CHECK(takeBoxes().size() == 1);

  Watch watch;
  watch.turns_left = 0;
  CHECK(!listDeliveries(nodes, groups, disk, watch, deliveries));
  CHECK(deliveryHeader("", "d", "t", 1) == " : 1 file (d , t)");
  CHECK(deliveryHeader("demo", "d", "t", 0) == "demo : 0 file (d , t)");
}

}  // namespace kesto
