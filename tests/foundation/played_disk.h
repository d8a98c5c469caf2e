// A file system played by a test: texts and times in memory. What is done to it is noted,
// and one step can fail, as on a full disk, or be the last before the process is ended.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "addon/foundation/file_system.h"

namespace kesto {

class PlayedDisk : public FileSystem {
 public:
  struct File {
    std::string text;
    std::int64_t modified;
  };

  std::map<std::string, File> files;
  std::set<std::string> directories;
  std::string locked;  // the part of a path where no file and no directory can be put
  std::int64_t now = 100;
  std::string done;   // "read PATH", "append PATH", "rename PATH", "put PATH"; a line each
  int changes = 0;    // steps that change something, so far
  int failing = 0;    // which of them fails; they count from 1
  bool ends = false;  // and whether nothing is done from there on

  void put(const std::string& path, const std::string& text) { files[path] = {text, now}; }
  std::string takeDone() { return std::exchange(done, std::string()); }
  std::map<std::string, std::string> texts() const {
    std::map<std::string, std::string> all;
    for (const auto& [path, file] : files) {
      all[path] = file.text;
    }
    return all;
  }

  std::optional<FileStatus> status(const char* path) override {
    if (directories.count(path) != 0) {
      return FileStatus{now, true};
    }
    const auto found = files.find(path);
    return found != files.end() ? std::optional(FileStatus{found->second.modified, false})
                                : std::nullopt;
  }
  bool read(const char* path, std::string& text) override {
    note("read", path);
    const auto found = files.find(path);
    text = found != files.end() ? found->second.text : "";
    return found != files.end();
  }
  bool holds(const char* path, std::string_view text) override {
    const auto found = files.find(path);
    return found != files.end() && found->second.text == text;
  }
  bool write(const char* path, std::string_view text) override { return put(path, "", text); }
  bool writeRecord(const char* path, const Basic& record) override {
    const Bytes bytes;
    return record.fWrite(bytes.file) != 0 && write(path, bytes.take());
  }
  bool readRecord(const char* path, Basic& record) override {
    const auto found = files.find(path);
    if (found == files.end()) {
      return false;
    }
    const Bytes bytes;
    fwrite(found->second.text.data(), 1, found->second.text.size(), bytes.file);
    rewind(bytes.file);
    return record.fRead(bytes.file) != 0;
  }
  bool append(const char* path, std::string_view text) override {
    note("append", path);
    return put(path, files[path].text, text);
  }
  bool flush(const char* path) override { return change() && files.count(path) != 0; }
  bool copy(const char* path, const char* new_path) override {
    const File file = files[path];
    const bool copied = put(new_path, "", file.text);
    files[new_path].modified = file.modified;
    return copied;
  }
  bool rename(const char* path, const char* new_path) override {
    const bool renamed = !status(new_path) && move(path, new_path);
    if (renamed) {
      note("rename", path);
    }
    return renamed;
  }
  bool replace(const char* path, const char* new_path) override {
    const bool replaced = directories.count(new_path) == 0 && move(path, new_path);
    if (replaced) {
      note("put", new_path);
    }
    return replaced;
  }
  void remove(const char* path) override {
    if (!ended()) {
      files.erase(path);
    }
  }
  bool makeDirectory(const char* path) override {
    return !isLocked(path) && directories.insert(path).second;
  }
  void removeDirectory(const char* path) override { directories.erase(path); }

 protected:
  // A file has come to stand there under another name.
  virtual void placed(const std::string& /*path*/) {}

 private:
  // A stream for records, on a file of the current directory that goes with it.
  struct Bytes {
    Bytes() = default;
    Bytes(const Bytes&) = delete;
    Bytes& operator=(const Bytes&) = delete;
    ~Bytes() {
      fclose(file);
      ::remove(name.c_str());
    }
    std::string take() const {
      std::string all(static_cast<std::size_t>(ftell(file)), '\0');
      rewind(file);
      all.resize(fread(all.data(), 1, all.size(), file));
      return all;
    }
    const std::string name =
        "played" + std::to_string(reinterpret_cast<std::uintptr_t>(this)) + ".tmp";
    FILE* const file = fopen(name.c_str(), "w+b");
  };

  void note(const char* what, const char* path) { done += std::string(what) + ' ' + path + '\n'; }
  bool ended() const { return ends && failing != 0 && changes >= failing; }
  bool change() {
    const bool over = ended();
    ++changes;
    return !over && changes != failing;
  }
  bool isLocked(const std::string& path) const {
    return !locked.empty() && path.find(locked) != std::string::npos;
  }
  // A text that does not fit is there with its first half.
  bool put(const std::string& path, const std::string& before, std::string_view text) {
    if (isLocked(path) || ended()) {
      return false;
    }
    const bool whole = change();
    put(path, before + std::string(whole ? text : text.substr(0, text.size() / 2)));
    return whole;
  }
  bool move(const char* path, const char* new_path) {
    if (isLocked(new_path) || files.count(path) == 0 || !change()) {
      return false;
    }
    files[new_path] = files[path];
    files.erase(path);
    placed(new_path);
    return true;
  }
};

}  // namespace kesto
