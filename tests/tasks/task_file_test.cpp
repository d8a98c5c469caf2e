// Task files: byte for byte as their form is laid down, broken ones, and the saving of one
// over another.
#include <map>
#include <string>

#include "addon/foundation/safe_write.h"
#include "addon/tasks/task_list.h"
#include "doctest.h"
#include "tests/foundation/played_disk.h"
#include "tests/tasks/played_days.h"

namespace kesto {

namespace {

const std::string kPath = "C:\\P\\app.ide.tsk";

// As on Windows 95.
class OldDisk : public PlayedDisk {
 public:
  bool replace(const char* path, const char* new_path) override {
    return replaceInSteps(*this, path, new_path);
  }
};

std::string number(std::uint32_t value, int bytes = 4) {
  std::string text;
  for (; bytes > 0; --bytes, value >>= 8) {
    text += static_cast<char>(value & 255);
  }
  return text;
}

std::string string(const std::string& text) {
  return number(static_cast<std::uint32_t>(text.size()), 2) + text + '\0';
}

std::string record(const std::string& name, std::uint32_t state = 1, std::uint32_t version = 0) {
  std::string dates;
  for (const std::uint32_t word : {1995, 12, 0, 31, 23, 59, 58, 999, 1996, 1, 1, 1, 1, 2, 3, 4}) {
    dates += number(word, 2);
  }
  return number(version) + string(name) + string("Bug") + number(state) + number(7) + number(9) +
         number(0xFFFFFFFD) + dates + string("one\r\ntwo");
}

std::string head(std::uint32_t version = 0, std::uint32_t order = 3) {
  return number(version) + number(1) + number(0) + number(2) + number(1) + number(1) +
         number(order);
}

const std::string kTypes = number(2) + string("Idea") + string("");

// A list that has a task of its own and has loaded the file.
struct Loaded {
  explicit Loaded(const std::string& bytes, PlayedDisk&& played = {})
      : disk(std::move(played)), list(disk) {
    disk.put(kPath, bytes);
    list.setTypes("own");
    list.append(new Task(TaskDate{}));
    list.setPath(kPath);
    list.load();
    CHECK(disk.texts()[kPath] == bytes);
  }
  std::string names() const {
    std::string all;
    for (int i = 0; i < list.count(); ++i) {
      all += list[i] != nullptr ? std::string(list[i]->name.view()) + ' ' : "NULL ";
    }
    return all;
  }

  PlayedDisk disk;
  TaskList list;
};

}  // namespace

TEST_CASE("a task file is read and written byte for byte") {
  const std::string bytes = head() + kTypes + number(2) + record("One") + record("Two", 2);
  Loaded loaded(bytes);
  TaskList& list = loaded.list;
  CHECK(loaded.names() == "One Two ");
  CHECK(list.order == 3);
  CHECK(list.reverse == 1);
  CHECK(list.show[kTested] == 2);
  CHECK(list.view().count() == 1);
  CHECK(list.joinedTypes().view() == "Idea;");
  const Task& one = *list[0];
  CHECK(one.state == kCoded);
  CHECK(one.is_public == 9);
  CHECK(one.priority == -3);
  CHECK(one.start == TaskDate{1995, 12, 0, 31, 23, 59, 58, 999});
  CHECK(one.end == TaskDate{1996, 1, 1, 1, 1, 2, 3, 4});
  CHECK(one.text.view() == "one\r\ntwo");

  list.save();
  std::string written = bytes;
  const std::string flags = number(7) + number(9);
  for (std::size_t at = written.find(flags); at != std::string::npos; at = written.find(flags)) {
    written.replace(at, 4, number(9));
  }
  CHECK(loaded.disk.texts() == std::map<std::string, std::string>{{kPath, written}});
}

TEST_CASE("a file that is cut keeps what was whole, and is kept beside before it is replaced") {
  const std::string start = head() + kTypes + number(3);
  const std::string bytes = start + record("One") + record("Two") + record("Three");
  const std::size_t one = start.size() + record("One").size();
  const std::size_t two = one + record("Two").size();
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    CAPTURE(size);
    Loaded loaded(bytes.substr(0, size));
    CHECK(loaded.names() == (size < head().size()  ? "New task "
                             : size < one          ? ""
                             : size < two          ? "One "
                             : size < bytes.size() ? "One Two "
                                                   : "One Two Three "));
    const bool types_whole = size >= (head() + kTypes).size();
    CHECK(loaded.list.joinedTypes().view() == (types_whole ? "Idea;" : "own"));
    loaded.list.save();
    auto texts = loaded.disk.texts();
    CHECK(texts.size() == (size < bytes.size() ? 2 : 1));
    CHECK((size == bytes.size() || texts[kPath + ".bak"] == bytes.substr(0, size)));
  }
}

TEST_CASE("numbers that lie cost no more than what follows them") {
  const std::string three = record("One") + record("Two") + record("Three", 1, 5);
  const struct {
    std::string bytes;
    const char* names;
    bool whole;
  } files[] = {
      {head(1) + kTypes + number(1) + record("One"), "New task ", false},
      {head(0xFFFFFFFF) + kTypes + number(1) + record("One"), "New task ", false},
      {head() + kTypes + number(3) + three, "One Two ", false},
      {head() + kTypes + number(0x7FFFFFFF) + record("One"), "One ", false},
      {head() + kTypes + number(0xFFFFFFFF) + record("One"), "", false},
      {head() + kTypes + number(1) + record("One") + record("Two"), "One ", false},
      {head() + number(0x7FFFFFFF) + string("Idea"), "", false},
      {head(0, 5) + kTypes + number(1) + record("State", 4), "State ", true},
      {head(0, 0xFFFFFFFF) + number(0) + number(0), "", true},
  };
  for (const auto& [bytes, names, whole] : files) {
    Loaded loaded(bytes);
    CHECK(loaded.names() == names);
    if (loaded.names() == "State ") {
      CHECK(loaded.list[0]->state == kToDo);
    }
    CHECK((loaded.list.order == 3 || loaded.list.order == kDefaultTaskOrder));
    loaded.list.save();
    CHECK((loaded.disk.texts().count(kPath + ".bak") == 0) == whole);
  }
}

TEST_CASE("whatever fails while it is saved, the old list is there or the new one") {
  const std::string whole = head() + kTypes + number(1) + record("One");
  for (const std::string& old : {whole, whole.substr(0, whole.size() - 3)}) {
    for (const bool ends : {false, true}) {
      bool saved = false;
      for (int failing = 1; !saved; ++failing) {
        OldDisk disk;
        disk.put(kPath, old);
        TaskList list(disk);
        list.setPath(kPath);
        list.load();
        list.clear();
        disk.failing = failing;
        disk.ends = ends;
        list.save();
        saved = disk.changes < failing;
        disk.failing = 0;
        const auto left = disk.texts();

        TaskList next(disk);
        next.setPath(kPath);
        next.load();
        auto texts = disk.texts();
        CAPTURE(failing);
        const bool replaced = texts[kPath] != old;
        CHECK((!replaced || texts[kPath] == head() + kTypes + number(0)));
        CHECK(replaced >= (saved || left.count(kPath) == 0));
        CHECK((!replaced || old == whole || texts[kPath + ".bak"] == old));
        CHECK((ends || left.size() == (saved && old != whole ? 2 : 1)));
      }
    }
  }
}

TEST_CASE("files that are kept beside stay; without a file there is nothing to keep") {
  Loaded loaded(head());
  loaded.disk.put(kPath + ".bak", "earlier");
  loaded.list.save();
  CHECK(loaded.disk.texts()[kPath + ".bak"] == "earlier");
  CHECK(loaded.disk.texts()[kPath + ".bak2"] == head());
  loaded.list.save();
  CHECK(loaded.disk.files.size() == 3);

  PlayedDisk empty;
  TaskList list(empty);
  list.append(new Task(TaskDate{}));
  list.setPath(kPath);
  list.load();
  CHECK(list.count() == 1);
  list.save();
  CHECK(empty.files.size() == 1);
}

}  // namespace kesto
