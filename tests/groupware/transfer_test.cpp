// What a send and a get do to both copies, worked out by hand.
#include <string>

#include "addon/groupware/group_lists.h"
#include "addon/groupware/transfer.h"
#include "doctest.h"
#include "tests/groupware/played_group.h"

namespace kesto {

namespace {

const GroupRoots kRoots = {"P", "S"};

struct Outcome {
  std::string report;
  std::string changed;
  std::string notice;
};

template <class T>
Outcome perform(PlayedGroup& files, const Tableau<T>& list, const char* user, ServerState there) {
  Transfer transfer(files, kRoots, there, user);
  for (int i = 0; i < list.count(); ++i) {
    if (list.at(i)->chosen()) {
      transfer.transfer(*list.at(i));
    }
  }
  Outcome outcome = {transfer.report(), "", transfer.notice()};
  for (const std::string& name : transfer.changed()) {
    outcome.changed += name + '\n';
  }
  return outcome;
}

// Every row gets the request, whatever the buttons would say; then something happens.
template <class Change>
Outcome send(PlayedGroup& files, SendRequest request, const Change& change) {
  SendList list;
  fillSendList(list, files, kRoots, "*.h");
  for (int i = 0; i < list.count(); ++i) {
    list.at(i)->request = request;
  }
  const ServerState there = serverState(files, "S");
  change();
  return perform(files, list, "", there);
}

template <class Change>
Outcome get(PlayedGroup& files, GetRequest request, const Change& change,
            const char* user = "Ann") {
  GetList list;
  fillGetList(list, files, kRoots, "*.h");
  for (int i = 0; i < list.count(); ++i) {
    list.at(i)->request = request;
  }
  change();
  return perform(files, list, user, ServerState::kFilled);
}

void nothing() {}

}  // namespace

// Copies as "TEXT w" or "TEXT r". A failed one keeps the destination's text, has its
// attributes changed all the same, and no line. "<" sends what is older than the server's.
TEST_CASE("what each action does to both copies") {
  struct Case {
    const char *action, *local, *server;
    const char *local_after, *server_after, *report, *lock;
  };
  const Case cases[] = {
      {"update", "new w", "old r", "new w", "new r", "a.h is refreshed\n", ""},
      {"update", "new w", "", "new w", "new r", "a.h is refreshed\n", ""},
      {"send", "new w", "old r", "new r", "new w", "a.h is delivered and unlocked\n", ""},
      {"send", "new w", "old w", "new r", "new w", "a.h is delivered and unlocked\n", ""},
      {"update<", "new w", "old r", "new w", "new r", "a.h is refreshed\n", ""},
      {"refresh", "", "new w", "new r", "new w", "", ""},
      {"refresh", "old r", "new r", "new r", "new r", "", ""},
      {"refresh", "old w", "new r", "new w", "new r", "", ""},
      {"get", "", "new w", "new w", "new r", "a.h is locked\n", "Ann w"},
      {"get", "old r", "new w", "new w", "new r", "a.h is locked\n", "Ann w"},
      {"update!", "new w", "old w", "new w", "old r", "", ""},
      {"send!", "new w", "old r", "new r", "old w", "", ""},
      {"refresh!", "old r", "new r", "old r", "new r", "", ""},
      {"refresh!", "old w", "new r", "old w", "new r", "", ""},
      {"get!", "old r", "new w", "old w", "new r", "", "Ann w"},
      {"get!", "", "new w", "", "new r", "", "Ann w"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.action);
    CAPTURE(c.local);
    PlayedGroup files;
    files.directories = {"P", "S"};
    const std::string action = c.action;
    const bool sends = action[0] == 'u' || action[0] == 's';
    const auto put = [&files](const char* path, const std::string& copy, int time) {
      if (!copy.empty()) {
        files.put(path, copy.substr(0, 3), time, copy.back() == 'w');
      }
    };
    put("P\\a.h", c.local, 5);
    put("S\\a.h", c.server, sends && action.back() != '<' ? 3 : 7);
    files.failing = action.back() == '!' ? sends ? "S\\" : "P\\a" : "";
    const Outcome outcome =
        sends ? send(files, action[0] == 'u' ? SendRequest::kUpdate : SendRequest::kSend, nothing)
              : get(files, action[0] == 'r' ? GetRequest::kRefresh : GetRequest::kGet, nothing);
    CHECK(files.at("P\\a.h") == c.local_after);
    CHECK(files.at("S\\a.h") == c.server_after);
    CHECK(outcome.report == c.report);
    CHECK(outcome.changed.empty());
    CHECK(files.at("S\\a.h.lock") == c.lock);
    if (*c.report != '\0') {
      CHECK(files.files["P\\a.h"].modified == files.files["S\\a.h"].modified);
    }
    // What is overwritten and may be all that there is of it, or was not sent and is read-only
    // from now on, is kept.
    const bool endangered =
        std::string(sends ? c.server : c.local) == "old w" || action == "update<";
    const std::string lost = endangered ? "old w" : action == "send!" ? "new w" : "";
    CHECK(files.at("P\\.kesto\\a.h") == lost);
    CHECK(outcome.notice ==
          (action == "send!" ? "Not sent, read-only now and kept in .kesto: a.h" : ""));
  }
}

TEST_CASE("a lock file has the name of whoever came last, and needs one") {
  PlayedGroup files;
  files.directories = {"P"};
  files.put("S\\a.h", "text", 5);
  get(files, GetRequest::kGet, nothing, "");
  CHECK(files.at("S\\a.h.lock").empty());
  get(files, GetRequest::kGet, nothing, "Bob");
  get(files, GetRequest::kGet, nothing, "Ann");
  CHECK(files.at("S\\a.h.lock") == "Ann w");
  CHECK(files.at("S\\a.h") == "text r");
  // No lock, no word of one.
  files.put("S\\b.h", "text", 5);
  files.stuck = "S\\b.h";
  const Outcome outcome = get(files, GetRequest::kGet, nothing);
  CHECK(outcome.report == "a.h is locked\n");
  CHECK(outcome.notice == "Not locked: b.h");
  CHECK(files.at("P\\b.h") == "text w");
  CHECK(files.at("S\\b.h.lock").empty());
}

TEST_CASE("folders missing on the other side are made") {
  PlayedGroup files;
  files.put("P\\a\\b\\c.h", "text", 5);
  CHECK(send(files, SendRequest::kUpdate, nothing).report == "a\\b\\c.h is refreshed\n");
  CHECK(files.at("S\\a\\b\\c.h") == "text r");
  files.put("S\\x\\y.h", "more", 5);
  get(files, GetRequest::kRefresh, nothing);
  CHECK(files.at("P\\x\\y.h") == "more r");
}

TEST_CASE("a server that went away is not made anew") {
  PlayedGroup files;
  files.put("P\\a.h", "text", 5);
  files.directories.insert("S");
  const Outcome outcome =
      send(files, SendRequest::kSend, [&files] { files.directories.erase("S"); });
  CHECK(outcome.report.empty());
  CHECK(outcome.changed == "a.h\n");
  CHECK(files.at("P\\a.h") == "text w");
  CHECK(files.directories.count("S") == 0);
}

// A disk that is taken away leaves an empty folder; one that was empty before takes files.
TEST_CASE("nothing is put where the server's disk was") {
  PlayedGroup files;
  files.put("P\\a.h", "text", 5);
  files.put("P\\b.h", "more", 5);
  files.put("S\\c.h", "hers", 5);
  CHECK(send(files, SendRequest::kSend, [&files] { files.files.erase("S\\c.h"); }).changed ==
        "a.h\nb.h\n");
  CHECK(files.at("P\\a.h") == "text w");
  CHECK(send(files, SendRequest::kUpdate, nothing).changed.empty());
  CHECK(files.at("S\\b.h") == "more r");
}

// The server's copies since the list was filled: 1 came, 2 went, 3 has another time within
// the same second, 4 was locked; 5 is as it was, and so is 6, which is new.
TEST_CASE("a file that changed on the server meanwhile is left alone") {
  PlayedGroup files;
  files.directories.insert("S");
  for (int i = 1; i <= 6; ++i) {
    const std::string name = std::to_string(i) + ".h";
    files.put("P\\" + name, "mine", 5);
    if (i != 1 && i != 6) {
      files.put("S\\" + name, "hers", 6);
    }
  }
  const auto change = [&files] {
    files.put("S\\1.h", "hers", 6);
    files.files.erase("S\\2.h");
    files.files["S\\3.h"].modified += 1;
    files.files["S\\4.h"].writable = false;
  };
  PlayedGroup getting = files;
  const Outcome sent = send(files, SendRequest::kUpdate, change);
  CHECK(sent.report == "5.h is refreshed\n6.h is refreshed\n");
  CHECK(sent.changed == "1.h\n2.h\n3.h\n4.h\n");
  CHECK(files.at("S\\4.h") == "hers r");
  CHECK(files.at("P\\4.h") == "mine w");

  const Outcome got = get(getting, GetRequest::kGet, [&getting] {
    getting.files.erase("S\\2.h");
    getting.files["S\\3.h"].modified += 1;
    getting.files["S\\4.h"].writable = false;
  });
  CHECK(got.report == "5.h is locked\n");
  CHECK(got.changed == "2.h\n3.h\n4.h\n");
  CHECK(getting.at("P\\3.h") == "mine w");
  CHECK(getting.at("S\\3.h") == "hers w");
  CHECK(getting.at("S\\2.h.lock").empty());
}

TEST_CASE("a local text that a get overwrites is kept, each of them") {
  PlayedGroup files;
  files.put("S\\sub\\a.h", "hers", 9, false);
  const auto refresh = [&files](const char* mine) {
    files.put("P\\sub\\a.h", mine, 5);
    get(files, GetRequest::kRefresh, nothing);
    CHECK(files.at("P\\sub\\a.h") == "hers w");
  };
  refresh("hers");
  CHECK(files.directories.count("P\\.kesto") == 0);
  refresh("one");
  refresh("two");
  refresh("two");
  refresh("three");
  CHECK(files.at("P\\.kesto\\sub\\a.h") == "three w");
  CHECK(files.at("P\\.kesto\\sub\\a.h.1") == "one w");
  CHECK(files.at("P\\.kesto\\sub\\a.h.2") == "two w");
  // One that cannot be kept stays where it is.
  files.failing = ".kesto";
  files.put("P\\sub\\a.h", "four", 5);
  CHECK(get(files, GetRequest::kGet, nothing).report.empty());
  CHECK(files.at("P\\sub\\a.h") == "four w");
  CHECK(files.refused == "P\\.kesto\\sub\\a.h");
  // Nor does a send cost a text that nobody has locked.
  files.refused.clear();
  files.put("S\\sub\\a.h", "five", 9);
  CHECK(send(files, SendRequest::kSend, nothing).report.empty());
  CHECK(files.at("S\\sub\\a.h") == "five w");
  CHECK(files.refused == "S\\sub\\a.h");
}

}  // namespace kesto
