// One "SEND !" or "GET !": what is done to both copies of each chosen file, in list order,
// and what the report says of it. Made for one action, when the person has chosen; plain
// code, user-interface thread.
#pragma once

#include <string>
#include <vector>

#include "addon/groupware/elt_gw.h"
#include "addon/groupware/group_tree.h"

namespace kesto {

// The folder below the project's directory that keeps what a get, a send over a text that may
// be somebody's alone, or a send that failed would have cost. No scan enters it.
inline constexpr char kKeptFolder[] = ".kesto";

// A disk that is taken away may leave an empty folder in its place.
enum class ServerState { kAbsent, kEmpty, kFilled };
ServerState serverState(GroupFiles& files, const std::string& directory);

class Transfer {
 public:
  // server_then: how the server directory was when the list was filled. user is the name for
  // the lock files, which are not written when it is empty. Both references must outlive it.
  Transfer(GroupFiles& files, const GroupRoots& roots, ServerState server_then,
           std::string user = {})
      : files_(files), roots_(roots), server_then_(server_then), user_(std::move(user)) {}

  // A file whose server copy is another than the list says is left alone.
  void transfer(const EltGWsend& element);
  void transfer(const EltGWget& element);

  // A line for each file whose action has one and was done whole.
  const std::string& report() const { return report_; }
  // What else has to be known of files whose action was not; empty when there are none.
  std::string notice() const;
  // The listed names of those left alone.
  const std::vector<std::string>& changed() const { return changed_; }

 private:
  bool isAsListed(const EltGW& element, const std::string& server_path) const;
  bool isServerAway() const;
  bool leaveAlone(const EltGW& element, const std::string& server_path, const std::string& name);
  // The folders of root\name that are missing.
  void makeFolders(const std::string& root, const std::string& name);
  // Both copies of a server file whose text came, or not.
  void lock(const EltGWget& element, const std::string& name, bool copied);
  std::string keptPath(const std::string& name) const;
  // Keeps the text at path before another one comes over it, unless that is the same.
  bool keepFrom(const char* coming, const std::string& path, const std::string& name);
  // Keeps the text at path as one of the file of that name.
  bool keep(const std::string& path, const std::string& name);
  bool makeRoomForKept(const std::string& kept);

  GroupFiles& files_;
  const GroupRoots& roots_;
  ServerState server_then_;
  std::string last_sent_;  // its server copy
  std::string user_;
  std::string report_;
  std::vector<std::string> changed_;
  std::string unsent_;  // names with ", " ahead
  std::string unlocked_;
};

}  // namespace kesto
