// What a directory holds, and the seam through which walks see the file system:
// DirectoryListing implements it, the tests play it. Any thread.
#pragma once

#include <string>
#include <string_view>

namespace kesto {

// Entries in listing order, in one piece of memory: a search keeps those of thousands of
// directories.
class DirectoryEntries {
 public:
  // A link is a directory that lies somewhere else, maybe above itself. A file is one
  // wherever its bytes lie.
  enum class Kind : char { kFile = 'f', kDirectory = 'd', kLink = 'l' };

  // The short name is the one of 8 and 3 characters, empty when there is none besides
  // the name. A name ends at its first zero.
  void add(Kind kind, std::string_view name, std::string_view short_name = {}) {
    packed_ += static_cast<char>(kind);
    for (const std::string_view one : {name, short_name}) {
      (packed_ += one.substr(0, one.find('\0'))) += '\0';
    }
  }

  // Calls each(kind, name, short name); the views live as long as no entry is added.
  template <class Each>
  void each(const Each& each) const {
    for (const char* at = packed_.data(); at != packed_.data() + packed_.size();) {
      const std::string_view name(at + 1);
      const std::string_view short_name(name.data() + name.size() + 1);
      each(static_cast<Kind>(*at), name, short_name);
      at = short_name.data() + short_name.size() + 1;
    }
  }

 private:
  std::string packed_;  // of each entry its kind, its name, a zero, its short name, a zero
};

class DirectoryLister {
 public:
  virtual ~DirectoryLister() = default;
  // Adds what the system lists for "directory\mask" in its order, volume labels left out.
  // A directory that cannot be listed holds nothing.
  virtual void list(const char* directory, const char* mask, DirectoryEntries& entries) = 0;
};

class FileLookup {
 public:
  virtual ~FileLookup() = default;
  // True for an existing path that is not a directory: a directory named like a
  // header is searched, and is no answer.
  virtual bool isFile(const char* path) = 0;
};

}  // namespace kesto
