// The disk of this system as the core sees it.
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "cli/posix/disk_files.h"
#include "cli/posix/disk_listing.h"
#include "doctest.h"

namespace kesto::cli {

namespace {

// A folder of its own, which goes in the end.
class Folder {
 public:
  Folder() : path_(std::filesystem::current_path() / "cli_disk") {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directory(path_);
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  std::string at(const std::string& name) const { return (path_ / name).string(); }
  void put(const std::string& name, const std::string& bytes) const {
    std::ofstream(at(name), std::ios::binary) << bytes;
  }
  std::string bytes(const std::string& name) const {
    std::ifstream file(at(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path path_;
};

std::string listed(DiskListing& listing, const std::string& core, const char* mask) {
  DirectoryEntries entries;
  listing.list(core.c_str(), mask, entries);
  std::string text;
  entries.each([&text](DirectoryEntries::Kind kind, std::string_view name, std::string_view) {
    ((text += static_cast<char>(kind)) += name) += ' ';
  });
  return text;
}

}  // namespace

TEST_CASE("a path of the disk is one of the drive Z:, and back") {
  DiskNames names;
  const struct {
    const char* disk;
    const char* core;
  } cases[] = {{"/", "Z:"},
               {"/a b/c.cpp", "Z:\\a b\\c.cpp"},
               {"/gr\xc3\xb6\xc3\x9f", "Z:\\gr\xf6\xdf"},
               {"/gr\xf6\xdf", "Z:\\gr%F6%DF"},
               {"/\xd0\x96.h", "Z:\\%D0%96.h"},
               {"/a\\b", "Z:\\a%5Cb"},
               {"/50%?", "Z:\\50%?"}};
  for (const auto& one : cases) {
    CHECK(names.corePath(one.disk) == one.core);
    CHECK(names.diskPath(one.core) == one.disk);
  }
  CHECK(names.corePath("/a/./b//../c/") == "Z:\\a\\c");
  CHECK(names.corePath("x") == names.corePath(std::filesystem::current_path().string() + "/x"));
  CHECK(names.diskPath("z:\\a/b") == "/a/b");
  CHECK(names.diskPath("/a\\b") == "/a/b");
  CHECK(names.diskPath("C:\\a").empty());
  CHECK(names.diskPath("\\\\host\\a").empty());
}

TEST_CASE("a name is found whatever its case, and the one that is written before another") {
  const Folder folder;
  std::filesystem::create_directory(folder.at("Sub"));
  folder.put("Sub/\xc3\x9c.RC", "");
  folder.put("one", "");
  DiskNames names;
  const std::string core = names.corePath(folder.at(""));
  CHECK(names.find(core + "\\sub\\\xfc.rc") == folder.at("Sub/\xc3\x9c.RC"));
  CHECK(names.find(core + "\\SUB\\new.h") == folder.at("Sub/new.h"));
  CHECK(names.find(core + "\\ONE") == folder.at("one"));
  DiskFiles files(names);
  CHECK(files.write((core + "\\New.h").c_str(), ""));
  CHECK(names.find(core + "\\nEW.h") == folder.at("New.h"));
  CHECK(files.rename((core + "\\new.H").c_str(), (core + "\\Other").c_str()));
  CHECK(names.find(core + "\\new.h") == folder.at("new.h"));
  CHECK(names.find(core + "\\other") == folder.at("Other"));
  folder.put("ONE", "");
  CHECK(names.find(core + "\\ONE") == folder.at("ONE"));
}

TEST_CASE("a folder is listed as Windows does") {
  const Folder folder;
  for (const char* name : {"b.C", "_.c", "a.c", "AB.c", "\xc3\xa4.c", "Z.c", "a.h", "x\\y.c"}) {
    folder.put(name, "");
  }
  std::filesystem::create_directory(folder.at("d.c"));
  std::filesystem::create_symlink("d.c", folder.at("link"));
  std::filesystem::create_symlink("a.c", folder.at("l.c"));
  std::filesystem::create_symlink("nowhere", folder.at("lost.c"));
  REQUIRE(mkfifo(folder.at("pipe.c").c_str(), 0600) == 0);
  DiskNames names;
  DiskListing listing(names);
  const std::string core = names.corePath(folder.at(""));
  CHECK(listed(listing, core, "*") ==
        "d. d.. fa.c fa.h fAB.c fb.C dd.c fl.c llink fx%5Cy.c fZ.c f_.c f\xe4.c ");
  CHECK(listed(listing, core, "?.H") == "fa.h ");
  CHECK(listed(listing, core + "\\none", "*").empty());
  CHECK(fitsMask("*b*c", "aBxbc"));
  CHECK(fitsMask("\xc4*", "\xe4"));
  CHECK_FALSE(fitsMask("*b?", "ab"));
}

TEST_CASE("files are written as on Windows") {
  const Folder folder;
  folder.put("u", "u");
  DiskNames names;
  DiskFiles files(names);
  const std::string core = names.corePath(folder.at(""));
  const auto at = [&core](const char* name) { return core + '\\' + name; };
  CHECK(files.write(at("t").c_str(), "a\n\r\nb"));
  CHECK(files.append(at("t").c_str(), "\n"));
  CHECK(folder.bytes("t") == "a\r\n\r\r\nb\r\n");
  CHECK(files.holds(at("T").c_str(), "a\n\r\nb\n"));
  CHECK_FALSE(files.holds(at("t").c_str(), "a\n\r\nb"));
  std::string text;
  CHECK(files.read(at("t").c_str(), text));
  CHECK(text == "a\n\r\nb\n");
  CHECK_FALSE(files.read(core.c_str(), text));

  CHECK_FALSE(files.rename(at("t").c_str(), at("U").c_str()));
  CHECK(files.replace(at("t").c_str(), at("U").c_str()));
  CHECK_FALSE(std::filesystem::exists(folder.at("t")));
  CHECK(files.copy(at("u").c_str(), at("v").c_str()));
  CHECK(files.status(at("v").c_str())->modified == files.status(at("u").c_str())->modified);
  std::filesystem::permissions(folder.at("v"), std::filesystem::perms::owner_read);
  CHECK_FALSE(files.replace(at("u").c_str(), at("v").c_str()));
  CHECK_FALSE(DiskListing(names).facts(at("V").c_str())->writable);
}

}  // namespace kesto::cli
