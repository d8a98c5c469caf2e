#include "workbench/editor/file_store.h"

#include <map>
#include <string>

#include "doctest.h"

using workbench::FileFault;
using workbench::FileStamp;
using workbench::FileStore;
using workbench::saveFile;

namespace {

using Files = std::map<std::string, std::string>;

// Files in memory. The step of number fails_at, counted from 0, does not happen, or only
// in part; with for_good, no step does from there on.
class MemoryStore final : public FileStore {
 public:
  FileStamp stamp(const std::string& path) override {
    FileStamp result;
    result.exists = files.count(path) != 0;
    result.read_only = path == read_only;
    return result;
  }
  FileFault read(const std::string& path, std::uint64_t, std::string* bytes) override {
    *bytes = files[path];
    return FileFault::kNone;
  }
  FileFault write(const std::string& path, const std::string& bytes) override {
    if (path.size() > 259) {
      return FileFault::kOther;
    }
    // A full disk leaves a part of the file behind.
    const bool whole = works();
    files[path] = bytes.substr(0, whole ? bytes.size() : 2);
    return whole ? FileFault::kNone : FileFault::kDiskFull;
  }
  FileFault replace(const std::string& from, const std::string& to) override {
    return replaces ? rename(from, to) : FileFault::kNotOffered;
  }
  FileFault move(const std::string& from, const std::string& to) override {
    return files.count(to) != 0 || to.size() > 259 ? FileFault::kDenied : rename(from, to);
  }
  void remove(const std::string& path) override {
    if (works()) {
      files.erase(path);
    }
  }

  Files files;
  std::string read_only;
  bool replaces = true;
  int steps = 0;
  int fails_at = -1;
  bool for_good = false;

 private:
  bool works() {
    const int step = steps++;
    return fails_at < 0 || (for_good ? step < fails_at : step != fails_at);
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

// Saves over "old text", or to a new file, with a fault at that step. Returns whether
// the step was reached.
bool savesWithFault(int step, bool there, bool replaces, bool for_good) {
  MemoryStore store;
  store.replaces = replaces;
  store.fails_at = step;
  store.for_good = for_good;
  if (there) {
    store.files["a.cpp"] = "old text";
  }
  const Files before = store.files;
  const FileFault fault = saveFile(store, "a.cpp", "new text");
  const bool reached = store.steps > step;
  CAPTURE(step);
  CAPTURE(replaces);
  CAPTURE(for_good);
  if (fault == FileFault::kNone) {
    CHECK(store.files["a.cpp"] == "new text");
    CHECK((!reached || store.files["a.cpp.~0.old"] == "old text"));
  } else if (fault == FileFault::kLeftAside) {
    // Two steps of a system that cannot replace failed.
    CHECK((for_good && !replaces));
    CHECK(store.files["a.cpp.~0.old"] == "old text");
  } else {
    CHECK((reached && fault == FileFault::kDiskFull));
    CHECK((there ? store.files["a.cpp"] == "old text" : store.files.count("a.cpp") == 0));
    CHECK((for_good || store.files == before));
  }
  return reached;
}

}  // namespace

TEST_CASE("a file holds the old text or the new one, whichever step fails") {
  for (int variant = 0; variant < 8; ++variant) {
    int step = 0;
    while (savesWithFault(step, (variant & 1) != 0, (variant & 2) != 0, (variant & 4) != 0)) {
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

TEST_CASE("saving spares files that happen to have the temporary's names") {
  for (const bool replaces : {true, false}) {
    MemoryStore store;
    store.replaces = replaces;
    store.files = {{"a.cpp", "old"}, {"a.cpp.~0", "someone's"}, {"a.cpp.~1.old", "someone's"}};
    CHECK(saveFile(store, "a.cpp", "text") == FileFault::kNone);
    CHECK(store.files ==
          Files{{"a.cpp", "text"}, {"a.cpp.~0", "someone's"}, {"a.cpp.~1.old", "someone's"}});

    // As long as paths can be, with a long name and with a short one.
    for (const std::size_t folder : {100, 247}) {
      const std::string path = std::string(folder, 'd') + "/" + std::string(258 - folder, 'n');
      store.files = {{path, "old"}};
      CHECK(saveFile(store, path, "text") == FileFault::kNone);
      CHECK(store.files == Files{{path, "text"}});
    }
  }
}
