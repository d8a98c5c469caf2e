#include "addon/groupware/transfer.h"

#include "addon/foundation/path.h"

namespace kesto {

namespace {

// Earlier texts of one file that are kept at most.
constexpr int kMostKept = 9999;

}  // namespace

ServerState serverState(GroupFiles& files, const std::string& directory) {
  if (!files.isDirectory(directory.c_str())) {
    return ServerState::kAbsent;
  }
  return files.holdsAnything(directory.c_str()) ? ServerState::kFilled : ServerState::kEmpty;
}

bool Transfer::isAsListed(const EltGW& element, const std::string& server_path) const {
  const std::optional<FileFacts> now = files_.facts(server_path.c_str());
  if (!now || !element.server) {
    return !now && !element.server && !isServerAway();
  }
  return now->modified == element.server->modified && now->writable == element.server->writable;
}

// A server that went away has not lost its files: nothing is made in its place. While the
// last file that was sent is there, so is the server.
bool Transfer::isServerAway() const {
  return (last_sent_.empty() || !files_.facts(last_sent_.c_str())) &&
         serverState(files_, roots_.server) < server_then_;
}

bool Transfer::leaveAlone(const EltGW& element, const std::string& server_path,
                          const std::string& name) {
  if (isAsListed(element, server_path)) {
    return false;
  }
  changed_.push_back(name);
  return true;
}

void Transfer::transfer(const EltGWsend& element) {
  const std::string name = element.listedName(roots_.project.size());
  const std::string server = pathBelow(roots_.server, name);
  if (leaveAlone(element, server, name)) {
    return;
  }
  makeFolders(roots_.server, name);
  if (element.server) {
    files_.setWritable(server.c_str(), true);
  }
  // A text that is newer than what is sent, or that nobody has locked, may be somebody's alone.
  const bool endangers = element.server && (element.age == Age::kNewer || element.server->writable);
  const bool kept = !endangers || keepFrom(element.path, server, name);
  if (!kept) {
    files_.tellRefused(server.c_str());
  }
  const bool copied = kept && files_.copy(element.path, server.c_str());
  if (element.request == SendRequest::kUpdate) {
    files_.setWritable(server.c_str(), false);
  } else {
    files_.setWritable(server.c_str(), true);
    // A read-only copy may be refreshed away: what was not sent is kept first.
    if (copied || keep(element.path.text(), name)) {
      files_.setWritable(element.path, false);
      unsent_ += copied ? "" : ", " + name;
    }
  }
  if (copied) {
    last_sent_ = server;
    report_ += name;
    report_ += element.request == SendRequest::kUpdate ? " is refreshed\n"
                                                       : " is delivered and unlocked\n";
  }
}

void Transfer::transfer(const EltGWget& element) {
  const std::string name = element.listedName(roots_.server.size());
  if (leaveAlone(element, element.path.text(), name)) {
    return;
  }
  const std::string local = pathBelow(roots_.project, name);
  const std::optional<FileFacts> before = files_.facts(local.c_str());
  const bool was_writable = before && before->writable;
  makeFolders(roots_.project, name);
  const bool kept = !was_writable || keepFrom(element.path, local, name);
  if (!kept) {
    files_.tellRefused(keptPath(name).c_str());
  }
  if (before && !was_writable) {
    files_.setWritable(local.c_str(), true);
  }
  const bool copied = kept && files_.copy(element.path, local.c_str());
  if (element.request == GetRequest::kRefresh) {
    files_.setWritable(local.c_str(), was_writable);
    return;
  }
  files_.setWritable(local.c_str(), true);
  lock(element, name, copied);
}

void Transfer::lock(const EltGWget& element, const std::string& name, bool copied) {
  if (!files_.setWritable(element.path, false)) {
    unlocked_ += ", " + name;
    return;
  }
  if (!user_.empty()) {
    files_.writeText((std::string(element.path.text()) + ".lock").c_str(), user_);
  }
  if (copied) {
    report_ += name + " is locked\n";
  }
}

std::string Transfer::notice() const {
  constexpr std::size_t kBetween = 2;
  if (!unsent_.empty()) {
    return "Not sent, read-only now and kept in .kesto: " + unsent_.substr(kBetween);
  }
  return unlocked_.empty() ? "" : "Not locked: " + unlocked_.substr(kBetween);
}

void Transfer::makeFolders(const std::string& root, const std::string& name) {
  const auto make = [this](const std::string& folder) {
    if (!files_.isDirectory(folder.c_str())) {
      files_.makeDirectory(folder.c_str());
    }
  };
  make(root);
  for (std::size_t end = name.find('\\'); end != std::string::npos;
       end = name.find('\\', end + 1)) {
    make(pathBelow(root, name.substr(0, end)));
  }
}

bool Transfer::keepFrom(const char* coming, const std::string& path, const std::string& name) {
  return files_.sameText(path.c_str(), coming) || keep(path, name);
}

std::string Transfer::keptPath(const std::string& name) const {
  return pathBelow(roots_.project, pathBelow(kKeptFolder, name));
}

// The text that was kept last stands under the file's own name, those before it have
// numbers behind.
bool Transfer::keep(const std::string& path, const std::string& name) {
  const std::string kept = keptPath(name);
  if (files_.sameText(path.c_str(), kept.c_str())) {
    return true;
  }
  makeFolders(roots_.project, pathBelow(kKeptFolder, name));
  return makeRoomForKept(kept) && files_.copyAside(path.c_str(), kept.c_str());
}

bool Transfer::makeRoomForKept(const std::string& kept) {
  if (!files_.facts(kept.c_str())) {
    return true;
  }
  for (int number = 1; number <= kMostKept; ++number) {
    const std::string earlier = kept + '.' + std::to_string(number);
    if (!files_.facts(earlier.c_str())) {
      return files_.rename(kept.c_str(), earlier.c_str());
    }
  }
  return false;
}

}  // namespace kesto
