// One make after the other: the command runs, its lines become messages, the
// status box tells how it goes. The host must outlive it. User-interface thread
// only; nothing here waits.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "workbench/make/build_process.h"
#include "workbench/make/output_line.h"
#include "workbench/make/status_box.h"
#include "workbench/messages/message_store.h"

namespace workbench {

class MakeHost {
 public:
  // The status box is open by now.
  virtual void makeStarted(const std::string& command) = 0;
  // After so many seconds.
  virtual void makeGoesOn(int seconds) = 0;
  // A MakeResult; the status box is still open.
  virtual void makeEnded(int result) = 0;

 protected:
  ~MakeHost() = default;
};

class MakeRun {
 public:
  MakeRun(MessageStore& messages, MakeHost& host);

  bool running() const { return running_; }
  // Not while one is running.
  void start(HWND owner, const std::string& command, const std::string& folder);
  // A make that only tells of itself, for scripts.
  void pretend(HWND owner, int result);
  void cancel();
  // Takes the status box down; a make that is running is cancelled first.
  void close();
  // Of the status box, null while it is closed.
  HWND window() const { return box_.window(); }

 private:
  void begin(HWND owner, const std::string& command);
  void poll();
  void takeLines(const std::vector<std::string>& lines);
  void addMessage(const OutputLine& line);
  void end(int result, const std::string& state);
  void showState(const std::string& state);

  MessageStore& messages_;
  MakeHost& host_;
  StatusBox box_;
  BuildProcess process_;
  LineSplitter splitter_;
  std::string folder_;
  unsigned int heading_ = 0;  // the message that the others stand below
  bool running_ = false;
  DWORD began_ = 0;  // milliseconds of the system's clock
  int seconds_ = 0;  // as told
  int lines_ = 0;
  int warnings_ = 0;
  int errors_ = 0;
};

}  // namespace workbench
