#include "workbench/editor/file_store.h"

#include <map>
#include <string>
#include <vector>

#include "doctest.h"

using workbench::FileFault;
using workbench::FileStamp;
using workbench::FileStore;
using workbench::leftoversOf;
using workbench::saveFile;

namespace {

using Files = std::map<std::string, std::string>;

// Files in memory. The step of number fails_at, counted from 0, does not happen, or only
// in part; with for_good, no step does from there on.
class MemoryStore final : public FileStore {
 public:
  FileStamp stamp(const std::string& path) override {
    FileStamp result;
    result.exists = files.count(target(path)) != 0;
    result.read_only = path == read_only;
    return result;
  }
  FileFault read(const std::string& path, std::uint64_t, std::string* bytes) override {
    *bytes = files[target(path)];
    return FileFault::kNone;
  }
  FileFault overwrite(const std::string& path, const std::string& bytes, bool* begun) override {
    *begun = works();
    if (*begun && !works()) {
      files[path] = bytes.substr(0, 2);
      return FileFault::kDiskFull;
    }
    return *begun ? rewrite(path, bytes) : FileFault::kDiskFull;
  }
  std::string target(const std::string& path) override {
    return path == "link.cpp" ? "a.cpp" : path;
  }
  bool losesByReplacing(const std::string&, const std::string&) override { return loses; }
  std::vector<std::string> beginningWith(const std::string& prefix) override {
    std::vector<std::string> result;
    for (const auto& [path, bytes] : files) {
      if (path.starts_with(prefix)) {
        result.push_back(path);
      }
    }
    return result;
  }
  FileFault write(const std::string& path, const std::string& bytes) override {
    // A full disk leaves a part of the file behind.
    const bool whole = works();
    files[path] = bytes.substr(0, whole ? bytes.size() : 2);
    return whole ? FileFault::kNone : FileFault::kDiskFull;
  }
  FileFault replace(const std::string& from, const std::string& to) override {
    return replaces ? rename(from, to) : FileFault::kNotOffered;
  }
  FileFault move(const std::string& from, const std::string& to) override {
    return files.count(to) != 0 ? FileFault::kDenied : rename(from, to);
  }
  void remove(const std::string& path) override {
    if (works()) {
      files.erase(path);
    }
  }

  Files files;
  std::string read_only;
  bool replaces = true;
  bool loses = false;
  int steps = 0;
  int fails_at = -1;
  bool for_good = false;

 private:
  bool works() {
    const int step = steps++;
    return fails_at < 0 || (for_good ? step < fails_at : step != fails_at);
  }
  FileFault rewrite(const std::string& path, const std::string& bytes) {
    files[path] = bytes;
    return FileFault::kNone;
  }
  FileFault rename(const std::string& from, const std::string& to) {
    if (!works()) {
      return FileFault::kDiskFull;
    }
    files[to] = files[from];
    files.erase(from);
    return FileFault::kNone;
  }
};

// How a save goes: over "old text" or to a new file, on which kind of system, and
// whether no step works any more after the one that fails, as when the program ends.
struct Variant {
  bool there;
  bool replaces;
  bool loses;
  bool for_good;
};

// The name of the whole new text beside the file, or nothing.
bool offersNewText(MemoryStore* store) {
  for (const std::string& path : leftoversOf(*store, "link.cpp")) {
    if (store->files[path] == "new text") {
      return true;
    }
  }
  return false;
}

// Saves with a fault at that step. Returns whether the step was reached.
bool savesWithFault(int step, const Variant& variant) {
  MemoryStore store;
  store.replaces = variant.replaces;
  store.loses = variant.loses;
  store.fails_at = step;
  store.for_good = variant.for_good;
  if (variant.there) {
    store.files["a.cpp"] = "old text";
  }
  const Files before = store.files;
  const std::string name = variant.there ? "link.cpp" : "a.cpp";
  const FileFault fault = saveFile(store, name, "new text");
  const bool reached = store.steps > step;
  CAPTURE(step);
  CAPTURE(variant.replaces);
  CAPTURE(variant.loses);
  CAPTURE(variant.for_good);
  CHECK(store.files.count("link.cpp") == 0);
  if (fault == FileFault::kNone) {
    CHECK(store.files["a.cpp"] == "new text");
    CHECK((!reached || variant.loses || store.files["a.cpp.~0.old"] == "old text"));
  } else if (fault == FileFault::kLeftAside) {
    // Two steps of a system that cannot replace failed.
    CHECK((variant.for_good && !variant.replaces));
    CHECK(store.files["a.cpp.~0.old"] == "old text");
    CHECK(leftoversOf(store, "a.cpp").size() == 2);
  } else if (fault == FileFault::kLeftBeside) {
    CHECK((variant.for_good && variant.loses));
    CHECK(offersNewText(&store));
  } else {
    CHECK((reached && fault == FileFault::kDiskFull));
    CHECK((variant.there ? store.files["a.cpp"] == "old text" : store.files.count("a.cpp") == 0));
    CHECK((variant.for_good || store.files == before));
  }
  return reached;
}

}  // namespace

TEST_CASE("a file holds the old text or the new one, or the new one is offered") {
  for (int bits = 0; bits < 16; ++bits) {
    const Variant variant = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
    int step = 0;
    while (savesWithFault(step, variant)) {
      ++step;
    }
    // Write and replace at the least.
    CHECK(step >= 2);
  }
  MemoryStore store;
  store.files["a.cpp"] = "old text";
  store.read_only = "a.cpp";
  CHECK(saveFile(store, "a.cpp", "new text") == FileFault::kReadOnly);
  CHECK(store.files == Files{{"a.cpp", "old text"}});
}

TEST_CASE("temporary files have room where paths end, and are found again") {
  for (const std::size_t folder : {40, 150, 240, 250}) {
    for (const std::size_t size : {255, 257, 258}) {
      const std::string path =
          "C:\\" + std::string(folder, 'd') + "\\" + std::string(size - folder - 4, 'n');
      MemoryStore store;
      store.for_good = true;
      store.fails_at = 1;  // the program ends after the first step
      saveFile(store, path, "text");
      CAPTURE(size);
      CAPTURE(folder);
      REQUIRE(store.files.size() == 1);
      CHECK(store.files.begin()->first.size() <= 259);
      CHECK(leftoversOf(store, path) == std::vector<std::string>{store.files.begin()->first});
    }
  }
  MemoryStore store;
  store.files = {{"a.cpp.~", ""}, {"a.cpp.~1x", ""}, {"a.cpp.~123", ""}, {"a.cpp.~0.old.~0", ""}};
  CHECK(leftoversOf(store, "a.cpp").empty());
}

TEST_CASE("saving spares files that happen to have the temporary's names") {
  for (const bool replaces : {true, false}) {
    MemoryStore store;
    store.replaces = replaces;
    store.files = {{"a.cpp", "old"}, {"a.cpp.~0", "someone's"}, {"a.cpp.~1.old", "someone's"}};
    CHECK(saveFile(store, "a.cpp", "text") == FileFault::kNone);
    CHECK(store.files ==
          Files{{"a.cpp", "text"}, {"a.cpp.~0", "someone's"}, {"a.cpp.~1.old", "someone's"}});
  }
}
