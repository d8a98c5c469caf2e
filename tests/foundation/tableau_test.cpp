#include "addon/foundation/tableau.h"

#include <string>
#include <vector>

#include "addon/foundation/string.h"
#include "doctest.h"
#include "tests/foundation/byte_file.h"
#include "tests/foundation/recorded_boxes.h"

namespace kesto {

using namespace std::string_literals;

namespace {

// Tells of its end.
class Mortal : public Basic {
 public:
  explicit Mortal(int& dead) : dead_(dead) {}
  Mortal(const Mortal&) = delete;
  Mortal& operator=(const Mortal&) = delete;
  ~Mortal() override { ++dead_; }

 private:
  int& dead_;
};

template <class Table>
void fill(Table& table, int count) {
  for (int i = 0; i < count; ++i) {
    table.append(new String(i));
  }
}

std::string texts(const Tableau<String>& table) {
  std::string all;
  for (int i = 0; i < table.count(); ++i) {
    all += table.at(i) == nullptr ? "-" : table.at(i)->text();
    all += ' ';
  }
  return all;
}

}  // namespace

TEST_CASE("a table grows and shrinks by its step") {
  Tableau<String> table;
  CHECK(table.capacity() == 0);
  std::vector<int> capacities;
  for (int i = 0; i < 21; ++i) {
    table.append(new String(i));
    capacities.push_back(table.capacity());
  }
  CHECK(capacities[0] == 10);
  CHECK(capacities[9] == 10);
  CHECK(capacities[10] == 20);
  CHECK(capacities[20] == 30);
  table.removeAndDelete(20);
  CHECK(table.capacity() == 30);  // 20 is not below 30 - 10
  table.removeAndDelete(19);
  CHECK(table.capacity() == 20);
  table.removeRange(9, 0);
  CHECK(table.count() == 9);
  CHECK(table.capacity() == 10);
  table.removeRange(0, 0);
  CHECK(table.capacity() == 0);
}

TEST_CASE("opening a gap takes the step above what is needed") {
  Tableau<String> table;
  fill(table, 3);
  table.openGap(1, 17);  // 20 needed: (20 / 10 + 1) * 10
  CHECK(table.capacity() == 30);
  CHECK(table.count() == 20);
  CHECK(*table.at(0) == "0");
  CHECK(table.at(1) == nullptr);
  CHECK(table.at(17) == nullptr);
  CHECK(*table.at(18) == "1");
  table.openGap(5, 0);
  CHECK(table.count() == 20);
}

TEST_CASE("a table emptied by a single removal is ready for the next insertion") {
  Tableau<String> wide;  // a step that changes leaves more than one step at the end
  wide.openGap(0, 11);
  wide.setStep(30);
  wide.removeRange(1, 0);
  wide.setStep(3);
  wide.remove(0);
  CHECK(wide.capacity() == 0);
  fill(wide, 1);
  CHECK(wide.capacity() == 3);
}

TEST_CASE("an owning table deletes what it drops, another leaves it") {
  int dead = 0;
  {
    Ensemble<Mortal> table;
    for (int i = 0; i < 5; ++i) {
      table.append(new Mortal(dead));
    }
    table.removeAndDelete(0);
    CHECK(dead == 1);
    delete table.remove(0);
    CHECK(dead == 2);
    table.removeRange(0, 2);
    CHECK(dead == 4);
    table.openGap(0, 1);
  }
  CHECK(dead == 5);

  Mortal kept(dead);
  {
    Ensemble<Mortal> view;
    view.setOwns(false);
    view.append(&kept);
    view.append(&kept);
    view.removeAndDelete(0);
  }
  CHECK(dead == 5);
}

TEST_CASE("sorting by text, by number and over a part") {
  Tableau<String> table;
  table.sortByText();
  for (const char* text : {"10", "9", "\xE9", "a", "Z", "-1"}) {
    table.append(new String(text));
  }
  table.sortByText(0, 1);  // one element is a range of its own
  CHECK(texts(table) == "10 9 \xE9 a Z -1 ");
  table.sortByText();
  CHECK(texts(table) == "-1 10 9 Z a \xE9 ");
  table.sortByNumber(0, 3);
  CHECK(texts(table) == "-1 9 10 Z a \xE9 ");
  table.swapWithNext(4);
  table.sortByText(4, 0);
  CHECK(texts(table) == "-1 9 10 Z a \xE9 ");
}

TEST_CASE("a table's file form, and a table of tables") {
  Tableau<Tableau<String>> table;
  table.append(new Tableau<String>);
  table.append(new Tableau<String>);
  table.at(0)->append(new String("ab"));
  table.at(0)->append(new String(""));
  const ByteFile file;
  CHECK(table.fWrite(file.get()) == 1);
  CHECK(file.bytes() == "\2\0\0\0"s + "\2\0\0\0"s + "\2\0ab\0"s + "\0\0\0"s + "\0\0\0\0"s);

  rewind(file.get());
  Tableau<Tableau<String>> read;
  read.append(new Tableau<String>);
  CHECK(read.fRead(file.get()) == 1);
  REQUIRE(read.count() == 2);
  CHECK(texts(*read.at(0)) == "ab  ");
  CHECK(read.at(1)->count() == 0);
}

TEST_CASE("a count that the file cannot hold opens no slots") {
  const struct {
    std::string bytes;
    int count;
  } cases[] = {
      {"\xFF\xFF\xFF\xFF"s + std::string(20, '\0'), 0},         // -1
      {"\0\0\0\x80"s, 0},                                       // the least
      {"\xFF\xFF\xFF\x7F"s + std::string(3000, '\0'), 0},       // the most
      {"\xFF\xFF\0\0"s + std::string(65535 * 3 - 1, '\0'), 0},  // one byte short
      {"\xFE\xFF\0\0"s, 65534},                                 // small enough to be opened unseen
  };
  for (const auto& c : cases) {
    Tableau<String> read;
    CHECK(read.fRead(ByteFile(c.bytes).get()) == 0);
    CHECK(read.count() == c.count);
  }
  Tableau<String> large;
  CHECK(large.fRead(ByteFile("\0\0\1\0"s + std::string(196608, '\0')).get()) == 1);
  CHECK(large.count() == 65536);
}

TEST_CASE("an Ensemble cannot be read") {
  Ensemble<String> group;
  CHECK(group.fRead(ByteFile("\0\0\0\0"s).get()) == 0);
  const auto boxes = takeBoxes();
  REQUIRE(boxes.size() == 1);
  CHECK(boxes[0].text == "Appel de Basic::fRead virtuelle pure !");
}

}  // namespace kesto
