// The message window ("BCW5Message"): the messages of one group, and a tab for
// each. The store must outlive it. User-interface thread only.
#pragma once

#include <functional>

#include "workbench/messages/message_viewer.h"
#include "workbench/messages/note_tab.h"
#include "workbench/windows/mdi_pane.h"

namespace workbench {

class MessageWindow final : public MdiPane, public MessageViewerHost {
 public:
  // open: shows the place of a message that has one.
  MessageWindow(MessageStore& store, std::function<void(const Message&)> open);

  static bool registerClasses(HINSTANCE instance);
  // A group has come or changed; the window catches up when the queue is empty. A new
  // message at the top level raises its group, and outside the makes it is selected:
  // what belongs to it follows below.
  void storeChanged(const MessageGroupInfo& group, const Message* added);
  void showGroup(unsigned int group);
  // Selects the next or former message that names a file, and returns it; null without one.
  // wrapped: it was sought from the other end on.
  const Message* step(bool next, bool* wrapped);
  // From here on the next message is the next that comes.
  void beginAfterLast();

  unsigned int shownGroup() const { return shown_; }
  // -1 for none.
  int selectedRow() const { return viewer_.selectedRow(); }

  const std::vector<Message>* shownMessages() override;
  void openMessage(const Message& message) override { open_(message); }
  void clearShown() override { store_.clear(shown_); }
  void viewerMenu(POINT place) override;

 protected:
  bool createControls() override;
  void layOut(int width, int height) override;
  RECT firstPlace(const RECT& client) const override;
  HWND focusControl() const override { return viewer_.window(); }
  bool paneMessage(UINT message, WPARAM w, LPARAM l, LRESULT* result) override;
  void paneGone() override;

 private:
  static LRESULT CALLBACK innerProc(HWND window, UINT message, WPARAM w, LPARAM l);
  void catchUp();
  void showHeader();

  MessageStore& store_;
  std::function<void(const Message&)> open_;
  NoteTab tabs_;
  MessageViewer viewer_;
  HWND inner_ = nullptr;  // between this window and its controls
  unsigned int shown_ = MessageStore::kBuildGroup;
  unsigned int header_ = 0;   // the message to select next, 0 for none
  bool other_group_ = false;  // since the list was last filled
  int row_ = -1;              // where the steps are, while the window is closed
  bool update_posted_ = false;
};

}  // namespace workbench
