// The messages and the places they lead to. User-interface thread only.
#pragma once

namespace workbench {

class MessageStore;

class MessageList {
 public:
  // The groups of the message window and what is in them.
  virtual const MessageStore& messages() = 0;
  // The group that the message window shows, and its selected message from 0, -1 for none.
  virtual unsigned int shownGroup() = 0;
  virtual int selectedMessage() = 0;
  // Shows the place of the message at this position (from 0) of the group that the
  // message window shows. False without such a message, or when its file cannot
  // be shown.
  virtual bool openMessage(int position) = 0;

 protected:
  ~MessageList() = default;
};

}  // namespace workbench
