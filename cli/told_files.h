// The system's files and folders, where each failure that the features pass over in silence
// is told with the name of the file. It remembers what was put in its place. Refers to the
// session.
#pragma once

#include <string>
#include <vector>

#include "cli/session.h"

namespace kesto::cli {

class ToldFiles : public FileSystem {
 public:
  explicit ToldFiles(Session& session) : session_(session), files_(session.system().files()) {}

  // Core paths, in the order in which they came to stand there.
  const std::vector<std::string>& put() const { return put_; }

  std::optional<FileStatus> status(const char* path) override { return files_.status(path); }
  // One that is not there is no failure.
  bool read(const char* path, std::string& text) override;
  bool holds(const char* path, std::string_view text) override { return files_.holds(path, text); }
  bool write(const char* path, std::string_view text) override;
  bool writeRecord(const char* path, const Basic& record) override;
  bool readRecord(const char* path, Basic& record) override;
  bool append(const char* path, std::string_view text) override;
  bool flush(const char* path) override;
  bool copy(const char* path, const char* new_path) override;
  // Onto a file that is there it fails without a word.
  bool rename(const char* path, const char* new_path) override;
  bool replace(const char* path, const char* new_path) override;
  void remove(const char* path) override { files_.remove(path); }
  bool makeDirectory(const char* path) override;
  void removeDirectory(const char* path) override { files_.removeDirectory(path); }

 private:
  bool told(bool done, const char* path);
  bool moved(bool done, const char* new_path);

  Session& session_;
  FileSystem& files_;
  std::vector<std::string> put_;
};

class ToldFolders : public DirectoryLister {
 public:
  explicit ToldFolders(Session& session) : session_(session) {}
  // One that is not there holds nothing.
  void list(const char* directory, const char* mask, DirectoryEntries& entries) override;

 private:
  Session& session_;
};

}  // namespace kesto::cli
