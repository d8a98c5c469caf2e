#include "workbench/editor/file_store.h"

#include <map>
#include <string>

#include "doctest.h"

using workbench::FileFault;
using workbench::FileStamp;
using workbench::FileStore;
using workbench::saveFile;

namespace {

// Files in memory; each kind of call can be made to fail.
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
    // A full disk leaves a part of the file behind.
    files[path] = write_fault == FileFault::kNone ? bytes : bytes.substr(0, 2);
    return write_fault;
  }
  FileFault replace(const std::string& from, const std::string& to) override {
    if (replace_fault == FileFault::kNone) {
      files[to] = files[from];
      files.erase(from);
    }
    return replace_fault;
  }
  void remove(const std::string& path) override { files.erase(path); }

  std::map<std::string, std::string> files;
  std::string read_only;
  FileFault write_fault = FileFault::kNone;
  FileFault replace_fault = FileFault::kNone;
};

}  // namespace

TEST_CASE("a file is replaced as a whole or stays as it was") {
  const struct {
    FileFault write_fault;
    FileFault replace_fault;
    bool read_only;
    FileFault result;
  } cases[] = {
      {FileFault::kNone, FileFault::kNone, false, FileFault::kNone},
      {FileFault::kDiskFull, FileFault::kNone, false, FileFault::kDiskFull},
      {FileFault::kNone, FileFault::kDenied, false, FileFault::kDenied},
      {FileFault::kNone, FileFault::kNone, true, FileFault::kReadOnly},
  };
  for (const auto& each : cases) {
    MemoryStore store;
    store.files["a.cpp"] = "old text";
    store.write_fault = each.write_fault;
    store.replace_fault = each.replace_fault;
    store.read_only = each.read_only ? "a.cpp" : "";
    CHECK(saveFile(store, "a.cpp", "new text") == each.result);
    CHECK(store.files["a.cpp"] == (each.result == FileFault::kNone ? "new text" : "old text"));
    CHECK(store.files.size() == 1);
  }
}

TEST_CASE("saving spares files that happen to have the temporary's name") {
  MemoryStore store;
  store.files["a.cpp.~0"] = "someone's";
  CHECK(saveFile(store, "a.cpp", "text") == FileFault::kNone);
  CHECK(store.files ==
        std::map<std::string, std::string>{{"a.cpp", "text"}, {"a.cpp.~0", "someone's"}});
}
