// The messages of the message window: groups, and in each a list in which a
// message stands below its parent, one level further in. Plain values, one thread.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace workbench {

// Kinds that the Workbench itself gives; add-ons may use any other.
enum MessageKind : int { kMessageInformation = 0, kMessageWarning = 1, kMessageError = 2 };

struct Message {
  unsigned int id = 0;
  unsigned int parent = 0;  // 0 at the top level
  int depth = 0;
  std::string text;
  std::string file;  // empty without a place
  int line = 0;      // 1-based, 0 for none
  int column = 0;    // 1-based, 0 for none
  int kind = kMessageInformation;
};

// In the order in which they are shown.
struct MessageGroupInfo {
  unsigned int id = 0;
  std::string name;
  std::string menu_text;
  std::vector<Message> messages;
};

class MessageStore {
 public:
  // What a full group refuses to go beyond.
  static constexpr std::size_t kMostMessages = 200000;
  // The group of the makes, which is always there.
  static constexpr unsigned int kBuildGroup = 1;

  // What changed: the group, and the message that was added (null for any other
  // change of the group).
  using Listener = std::function<void(const MessageGroupInfo& group, const Message* added)>;

  MessageStore();
  void setListener(Listener listener) { listener_ = std::move(listener); }

  // A name that is there already makes another group of that name.
  unsigned int createGroup(const std::string& name, const std::string& menu_text);
  // Puts the message after all that stands below its parent; a parent that is
  // gone counts as none. Returns its id, 0 without such a group or in a full one.
  unsigned int add(unsigned int group, const Message& message);
  void clear(unsigned int group);
  // Null for a group that does not exist.
  const MessageGroupInfo* group(unsigned int id) const;
  const std::vector<MessageGroupInfo>& groups() const { return groups_; }

 private:
  struct Place {
    unsigned int group;
    std::size_t row;
  };
  std::size_t rowAfter(const MessageGroupInfo& group, unsigned int parent) const;
  bool isBelow(const MessageGroupInfo& group, const Message& message, unsigned int parent) const;

  std::vector<MessageGroupInfo> groups_;
  std::unordered_map<unsigned int, Place> places_;
  unsigned int last_id_ = 0;
  Listener listener_;
};

}  // namespace workbench
