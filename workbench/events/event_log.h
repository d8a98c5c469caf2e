// Where events go: to standard output, and to whoever waits for one (the script).
#pragma once

#include <deque>
#include <functional>

#include "workbench/events/event.h"

namespace workbench {

// User-interface thread only. One log lives as long as the program.
class EventLog {
 public:
  using Listener = std::function<void(const Event&)>;

  // Writes the event as one line, flushed at once, and calls the listener after
  // it. An event emitted from within the listener is written and delivered
  // after the current one.
  void emit(const Event& event);
  // One listener at a time; an empty function removes it.
  void setListener(Listener listener);
  // With output off events reach only the listener (the default is on).
  void setOutput(bool on);

 private:
  Listener listener_;
  bool output_ = true;
  bool delivering_ = false;
  std::deque<Event> waiting_;  // emitted while another one was being delivered
};

}  // namespace workbench
