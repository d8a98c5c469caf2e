#include "workbench/messages/message_store.h"

#include <utility>

namespace workbench {

MessageStore::MessageStore() {
  groups_.push_back({kBuildGroup, "Build", "&Build", {}});
}

unsigned int MessageStore::createGroup(const std::string& name, const std::string& menu_text) {
  const auto id = static_cast<unsigned int>(groups_.size() + 1);
  groups_.push_back({id, name, menu_text, {}});
  if (listener_) {
    listener_(groups_.back(), nullptr);
  }
  return id;
}

const MessageGroupInfo* MessageStore::group(unsigned int id) const {
  return id == 0 || id > groups_.size() ? nullptr : &groups_[id - 1];
}

bool MessageStore::isBelow(const MessageGroupInfo& group, const Message& message,
                           unsigned int parent) const {
  for (unsigned int id = message.parent; id != 0;) {
    if (id == parent) {
      return true;
    }
    id = group.messages[places_.at(id).row].parent;
  }
  return false;
}

std::size_t MessageStore::rowAfter(const MessageGroupInfo& group, unsigned int parent) const {
  const std::vector<Message>& messages = group.messages;
  // Lists grow at their end nearly always.
  if (parent == 0 || messages.back().id == parent || isBelow(group, messages.back(), parent)) {
    return messages.size();
  }
  const std::size_t first = places_.at(parent).row;
  std::size_t row = first + 1;
  while (messages[row].depth > messages[first].depth) {
    ++row;
  }
  return row;
}

unsigned int MessageStore::add(unsigned int group, const Message& message) {
  if (this->group(group) == nullptr || groups_[group - 1].messages.size() >= kMostMessages) {
    return 0;
  }
  MessageGroupInfo& target = groups_[group - 1];
  Message added = message;
  added.id = ++last_id_;
  const auto parent = places_.find(added.parent);
  if (parent == places_.end() || parent->second.group != group) {
    added.parent = 0;
  }
  added.depth = added.parent == 0 ? 0 : target.messages[parent->second.row].depth + 1;
  const std::size_t row = target.messages.empty() ? 0 : rowAfter(target, added.parent);
  target.messages.insert(target.messages.begin() + static_cast<std::ptrdiff_t>(row), added);
  for (std::size_t i = row; i < target.messages.size(); ++i) {
    places_[target.messages[i].id] = {group, i};
  }
  if (listener_) {
    listener_(target, &added);
  }
  return added.id;
}

void MessageStore::clear(unsigned int group) {
  if (this->group(group) == nullptr) {
    return;
  }
  MessageGroupInfo& target = groups_[group - 1];
  for (const Message& message : target.messages) {
    places_.erase(message.id);
  }
  target.messages.clear();
  if (listener_) {
    listener_(target, nullptr);
  }
}

}  // namespace workbench
