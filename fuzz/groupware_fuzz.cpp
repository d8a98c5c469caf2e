// Two people and their server through any days: edits, sends and gets with any buttons,
// copies that fail, a server that goes away and comes back, and whatever the other one does
// between the filling of a list and its "SEND !" or "GET !".
// fuzz: -max_len=512
#include <algorithm>
#include <string>
#include <vector>

#include "addon/groupware/group_lists.h"
#include "addon/groupware/transfer.h"
#include "fuzz/fuzz.h"
#include "tests/groupware/played_group.h"

namespace kesto {

namespace {

constexpr const char* kPeople[] = {"A", "B"};
constexpr const char* kNames[] = {"a.h", "b.cpp", "b\\c.h", "d\\e\\f.h", "g.txt"};
constexpr char kFilters[] = "*.h;*.cpp;b*";
constexpr const char* kAway = "T";

class Input {
 public:
  explicit Input(std::string_view bytes) : rest_(bytes) {}
  bool over() const { return rest_.empty(); }
  int next(int below) {
    if (rest_.empty()) {
      return 0;
    }
    const int value = static_cast<unsigned char>(rest_.front()) % below;
    rest_.remove_prefix(1);
    return value;
  }

 private:
  std::string_view rest_;
};

class Days {
 public:
  explicit Days(std::string_view bytes) : input_(bytes) { files_.directories = {"A", "B", "S"}; }

  void live() {
    while (!input_.over()) {
      step(true);
      checkUnsent();
    }
  }

 private:
  using Files = std::map<std::string, PlayedGroup::File>;

  void step(bool whole) {
    const std::string person = kPeople[input_.next(2)];
    switch (input_.next(whole ? 6 : 4)) {
      case 0:
      case 1:
        edit(person);
        break;
      case 2:
        ++now_;
        break;
      case 3:
        moveServer();
        break;
      case 4:
        act<SendList>(person);
        break;
      default:
        act<GetList>(person);
    }
  }

  void edit(const std::string& person) {
    const std::string path = pathBelow(person, kNames[input_.next(5)]);
    const auto found = files_.files.find(path);
    if (found == files_.files.end() || found->second.writable) {
      const std::string text = "text " + std::to_string(++edits_);
      files_.put(path, text, now_);
      unsent_[path] = text;
    }
  }

  void moveServer() {
    const bool there = files_.directories.count("S") != 0;
    const std::string from = there ? "S" : kAway;
    const std::string to = there ? kAway : "S";
    if (files_.directories.count(to) != 0) {
      return;
    }
    const auto moved = [&](const std::string& path) {
      return path == from || path.starts_with(from + '\\') ? to + path.substr(1) : path;
    };
    Files files;
    for (const auto& [path, file] : files_.files) {
      files[moved(path)] = file;
    }
    std::set<std::string> directories;
    for (const std::string& path : files_.directories) {
      directories.insert(moved(path));
    }
    files_.files = files;
    files_.directories = directories;
  }

  void fill(SendList& list, const GroupRoots& roots) {
    fillSendList(list, files_, roots, kFilters);
  }
  void fill(GetList& list, const GroupRoots& roots) { fillGetList(list, files_, roots, kFilters); }
  void press(SendList& list, const std::vector<int>& selected) {
    pressButton(static_cast<SendButton>(input_.next(3)), list, selected);
  }
  void press(GetList& list, const std::vector<int>& selected) {
    pressButton(static_cast<GetButton>(input_.next(4)), list, selected);
  }

  template <class List>
  void act(const std::string& person) {
    const GroupRoots roots = {person, "S"};
    List list;
    fill(list, roots);
    checkOrder(list);
    const ServerState there = serverState(files_, "S");
    const Files filled = files_.files;
    for (int presses = input_.next(4); presses > 0; --presses) {
      std::vector<int> selected;
      for (int i = 0; i < list.count(); ++i) {
        if (input_.next(3) == 0) {
          selected.push_back(i);
        }
      }
      press(list, selected);
    }
    for (int meanwhile = input_.next(3); meanwhile > 0; --meanwhile) {
      step(false);
    }
    const Files before = files_.files;
    files_.copies = 0;
    files_.failing_copy = input_.next(6);
    Transfer transfer(files_, roots, there, person);
    for (int i = 0; i < list.count(); ++i) {
      if (list.at(i)->chosen()) {
        transfer.transfer(*list.at(i));
      }
    }
    files_.failing_copy = 0;
    check(list, person, filled, before, transfer);
  }

  template <class List>
  static void checkOrder(const List& list) {
    for (int i = 1; i < list.count(); ++i) {
      FUZZ_CHECK(list.at(i - 1)->path.view() < list.at(i)->path.view());
    }
  }

  template <class List>
  void check(const List& list, const std::string& person, const Files& filled, const Files& before,
             const Transfer& transfer) {
    int lines = 0;
    for (int i = 0; i < list.count(); ++i) {
      lines += checkElement(*list.at(i), person, filled, before, transfer);
    }
    const std::string& report = transfer.report();
    FUZZ_CHECK(std::count(report.begin(), report.end(), '\n') == lines);
    // What was there is there, and nobody else's files are touched.
    for (const auto& [path, file] : before) {
      const bool kept = path.find(kKeptFolder) != std::string::npos;
      FUZZ_CHECK(kept ? isKept(person, file.text) || path[0] != person[0]
                      : files_.files.count(path) != 0);
      const bool others = path[0] != person[0] && path[0] != 'S';
      FUZZ_CHECK(!others || files_.files[path] == file);
    }
  }

  // Returns the lines that the report has to have of it.
  int checkElement(const EltGWsend& element, const std::string& person, const Files& filled,
                   const Files& before, const Transfer& transfer) {
    const std::string name = element.listedName(1);
    const std::string server = pathBelow("S", name);
    const PlayedGroup::File was = at(before, server);
    const PlayedGroup::File now = at(files_.files, server);
    const PlayedGroup::File mine = at(files_.files, element.path.text());
    FUZZ_CHECK(mine.text == at(before, element.path.text()).text);
    FUZZ_CHECK(now.text == was.text || now.text == mine.text);
    if (now != was) {
      FUZZ_CHECK(element.chosen() && at(filled, server) == was);
      FUZZ_CHECK(now.writable == (element.request == SendRequest::kSend));
    }
    if (!mine.writable && !mine.text.empty()) {
      FUZZ_CHECK(element.request == SendRequest::kSend);
      FUZZ_CHECK(now.text == mine.text || isKept(person, mine.text));
    }
    const bool told = tells(transfer, name + " is ");
    FUZZ_CHECK(!told || (now.text == mine.text && now.modified == mine.modified));
    FUZZ_CHECK(now == was || now.text == was.text || told);
    if (told) {
      unsent_.erase(element.path.text());
    }
    return told ? 1 : 0;
  }

  int checkElement(const EltGWget& element, const std::string& person, const Files& filled,
                   const Files& before, const Transfer& transfer) {
    const std::string name = element.listedName(1);
    const std::string local = pathBelow(person, name);
    const PlayedGroup::File was = at(before, local);
    const PlayedGroup::File now = at(files_.files, local);
    const PlayedGroup::File hers = at(files_.files, element.path.text());
    // Where the filters take lock files for sources, one of them is written beside another.
    FUZZ_CHECK(name.ends_with(".lock") || hers.text == at(before, element.path.text()).text);
    FUZZ_CHECK(now.text == was.text || now.text == hers.text);
    FUZZ_CHECK(now == was || (element.chosen() && element.advice != Advice::kError));
    if (now.text != was.text && was.writable && !was.text.empty()) {
      // Written by its owner under the lock, or since the list was filled.
      FUZZ_CHECK(!at(filled, element.path.text()).writable || at(filled, local) != was);
      FUZZ_CHECK(isKept(person, was.text));
    }
    const bool told = tells(transfer, name + " is locked\n");
    FUZZ_CHECK(!told || (now.text == hers.text && now.writable && !hers.writable));
    FUZZ_CHECK(!told ||
               at(files_.files, std::string(element.path.text()) + ".lock").text == person);
    return told ? 1 : 0;
  }

  static bool tells(const Transfer& transfer, const std::string& line) {
    const std::string report = '\n' + transfer.report();
    return report.find('\n' + line) != std::string::npos;
  }
  static PlayedGroup::File at(const Files& files, const std::string& path) {
    const auto found = files.find(path);
    return found != files.end() ? found->second : PlayedGroup::File();
  }
  bool isKept(const std::string& person, const std::string& text) const {
    const std::string below = pathBelow(person, kKeptFolder);
    return std::any_of(files_.files.begin(), files_.files.end(), [&](const auto& one) {
      return one.first.starts_with(below) && one.second.text == text;
    });
  }

  // What somebody wrote and has not sent is somewhere.
  void checkUnsent() const {
    for (const auto& unsent : unsent_) {
      FUZZ_CHECK(std::any_of(files_.files.begin(), files_.files.end(), [&unsent](const auto& one) {
        return one.second.text == unsent.second;
      }));
    }
  }

  Input input_;
  PlayedGroup files_;
  std::map<std::string, std::string> unsent_;  // by path
  int now_ = 1;
  int edits_ = 0;
};

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kesto::Days(kesto::inputText(data, size)).live();
  return 0;
}
