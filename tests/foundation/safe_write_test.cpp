// The steps of putting a new text in its place. What they add up to for the features is
// tested with these; on Windows the real file system has its turn as well.
#include "addon/foundation/safe_write.h"
#include "addon/foundation/path.h"

#include <map>
#include <string>

#include "addon/foundation/text_file.h"
#include "doctest.h"
#include "tests/foundation/played_disk.h"

#ifdef _WIN32
#include <windows.h>

#include "addon/foundation/file_system_win.h"
#endif

namespace kesto {

TEST_CASE("what grows beside a file is in its folder, and no source by its name") {
  CHECK(newTextPath("C:\\P\\rc.cpp").view() == "C:\\P\\.rc.cpp.kesto-new");
  CHECK(oldTextPath("a/b").view() == "a/.b.kesto-old");
  CHECK(newTextPath("b").view() == ".b.kesto-new");
  // "C:\", "\.ab" and ".kesto-new" are the 17 beside.
  const std::string folder = "C:\\" + std::string(kPathLimit - 17, 'd') + "\\";
  CHECK(newTextPath(folder + "ab").view() == folder + ".ab.kesto-new");
  CHECK(newTextPath(folder + "abc").view() == folder + "ab~");
  CHECK(oldTextPath(folder + "abc").view() == folder + "ab!");
  CHECK(newTextPath(folder + "ab~").view() == folder + "ab_");
  CHECK(newTextPath("f/" + std::string(245, 'n')).view() == "f/" + std::string(244, 'n') + '~');
}

TEST_CASE("where no file replaces another, the old one is there until the new one is") {
  for (const bool there : {true, false}) {
    for (int failing = 1; failing <= 3; ++failing) {
      for (const bool ends : {false, true}) {
        PlayedDisk disk;
        disk.put("n", "new");
        disk.put(".f.kesto-old", "of an earlier time");
        if (there) {
          disk.put("f", "old");
        }
        disk.failing = failing;
        disk.ends = ends;
        const bool replaced = replaceInSteps(disk, "n", "f");
        CHECK(replaced == (failing > (there ? 2 : 1)));
        auto texts = disk.texts();
        if (replaced) {
          CHECK(texts["f"] == "new");
        } else {
          CHECK(texts["n"] == "new");
          const bool between = ends && there && failing == 2;
          CHECK((!there || texts[between ? ".f.kesto-old" : "f"] == "old"));
        }
      }
    }
  }
}

TEST_CASE("two files are both new or both old, where none replaces another too") {
  class OldDisk : public PlayedDisk {
   public:
    bool replace(const char* path, const char* new_path) override {
      return replaceInSteps(*this, path, new_path);
    }
  };
  int failed = 0;
  for (bool put = false; !put;) {
    OldDisk disk;
    disk.put("a", "old");
    disk.put("b", "old");
    disk.failing = ++failed;
    {
      SafeFile first(disk, "a");
      SafeFile second(disk, "b");
      first.write("new");
      second.write("new");
      put = putBoth(first, second);
    }
    CAPTURE(failed);
    const std::string text = put ? "new" : "old";
    CHECK(disk.texts() == std::map<std::string, std::string>{{"a", text}, {"b", text}});
  }
  CHECK(failed > 8);
}

#ifdef _WIN32
TEST_CASE("files of the system are replaced whole") {
  FileSystemWin files;
  const char* const path = "safe_write_test.tmp";
  const auto put = [&](const char* text) {
    SafeFile file(files, path);
    file.write(text);
    return file.put();
  };
  DeleteFileA(path);
  CHECK(put("one\n"));
  CHECK(put("two\n"));
  CHECK(files.holds(path, "two\n"));
  CHECK_FALSE(files.holds(path, "two\r\n"));
  CHECK_FALSE(files.holds(path, "two"));
  CHECK_FALSE(files.holds(path, "two\n\n"));

  SetFileAttributesA(path, FILE_ATTRIBUTE_READONLY);
  CHECK_FALSE(put("three\n"));
  CHECK(files.copy(path, "safe_write_copy.tmp"));
  CHECK(files.status("safe_write_copy.tmp")->modified == files.status(path)->modified);
  SetFileAttributesA(path, FILE_ATTRIBUTE_NORMAL);
  CHECK(files.holds(path, "two\n"));

  CHECK_FALSE(files.rename("safe_write_copy.tmp", path));
  CHECK(files.append("safe_write_copy.tmp", "four\n"));
  CHECK(replaceInSteps(files, "safe_write_copy.tmp", path));
  CHECK(files.holds(path, "two\nfour\n"));
  files.remove(path);

  CHECK(files.makeDirectory(path));
  CHECK_FALSE(put("five\n"));
  files.removeDirectory(path);
  CHECK_FALSE(files.status(path));
  CHECK_FALSE(files.status(newTextPath(path)));
  CHECK_FALSE(files.status(oldTextPath(path)));
}
#endif

}  // namespace kesto
