// A disk played by a test, for copies: files in memory, and what can go wrong with them.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <map>
#include <set>
#include <string>

#include "addon/ide/copy_files.h"

namespace kesto {

class PlayedCopies : public CopyFiles {
 public:
  struct File {
    std::string bytes;
    std::int64_t modified = 0;
    std::uint64_t claimed = 0;  // its size, where that is not what it holds
    bool closed = false;        // it cannot be opened
    bool kept = false;          // it may not be written
    bool broken = false;        // reading ends with a failure
  };
  std::map<std::string, File> files;
  std::set<std::string> directories;
  std::size_t room = std::numeric_limits<std::size_t>::max();  // bytes that still fit
  std::size_t largest_block = 0;                               // that was asked for
  int placed = 0;                                              // times that was asked
  std::string newcomer;  // a path where a file appears when something is put there

  std::string text(const std::string& path) const {
    const auto found = files.find(path);
    return found != files.end() ? found->second.bytes : "(none)";
  }

  bool exists(const char* path) override { return size(path).has_value(); }
  std::optional<std::uint64_t> size(const char* path) override {
    const auto found = files.find(path);
    if (found != files.end()) {
      return sizeOf(found->second);
    }
    return directories.count(path) != 0 ? std::optional<std::uint64_t>(0) : std::nullopt;
  }
  std::unique_ptr<CopySource> open(const char* path) override {
    const auto found = files.find(path);
    return found != files.end() && !found->second.closed
               ? std::make_unique<Source>(*this, found->second)
               : nullptr;
  }
  CopyPlace place(const char* path) override {
    ++placed;
    const auto found = files.find(path);
    if (directories.count(path) != 0 || (found != files.end() && found->second.kept)) {
      return CopyPlace::kTaken;
    }
    return found != files.end() ? CopyPlace::kFile : CopyPlace::kVacant;
  }
  std::unique_ptr<CopyTarget> grow(const char* path) override {
    const std::string directory = std::string(path).substr(0, std::string(path).rfind('\\'));
    return directories.count(directory) != 0 ? std::make_unique<Target>(*this, path) : nullptr;
  }

 private:
  static std::uint64_t sizeOf(const File& file) {
    return file.claimed != 0 ? file.claimed : file.bytes.size();
  }

  class Source : public CopySource {
   public:
    Source(PlayedCopies& disk, const File& file) : disk_(disk), file_(file) {}
    std::int64_t modified() const override { return file_.modified; }
    // Files come in odd pieces.
    long read(char* bytes, std::size_t size) override {
      disk_.largest_block = std::max(disk_.largest_block, size);
      const std::size_t piece = std::min({size, file_.bytes.size() - at_, std::size_t{50000}});
      memcpy(bytes, file_.bytes.data() + at_, piece);
      at_ += piece;
      return piece == 0 && file_.broken ? -1 : static_cast<long>(piece);
    }

   private:
    PlayedCopies& disk_;
    const File& file_;
    std::size_t at_ = 0;
  };

  class Target : public CopyTarget {
   public:
    Target(PlayedCopies& disk, const char* path) : disk_(disk), path_(path) {}
    bool write(const char* bytes, std::size_t size) override {
      if (size > disk_.room) {
        return false;
      }
      disk_.room -= size;
      grown_.bytes.append(bytes, size);
      return true;
    }
    void setModified(std::int64_t modified) override { grown_.modified = modified; }
    bool put() override {
      if (disk_.newcomer == path_) {
        disk_.files[path_] = {"came meanwhile"};
      }
      return disk_.files.count(path_) == 0 && disk_.directories.count(path_) == 0 && replace();
    }
    bool replace() override {
      disk_.files[path_] = grown_;
      return true;
    }

   private:
    PlayedCopies& disk_;
    std::string path_;
    File grown_;
  };
};

}  // namespace kesto
