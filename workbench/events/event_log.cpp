#include "workbench/events/event_log.h"

#include <cstdio>
#include <utility>

namespace workbench {
namespace {

void writeLine(const Event& event) {
  std::string line = event.toJson() + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fflush(stdout);
}

}  // namespace

void EventLog::emit(const Event& event) {
  waiting_.push_back(event);
  if (delivering_) {
    return;
  }
  delivering_ = true;
  while (!waiting_.empty()) {
    Event next = std::move(waiting_.front());
    waiting_.pop_front();
    if (output_) {
      writeLine(next);
    }
    // A copy, so that a listener may take its own place away.
    if (Listener listener = listener_) {
      listener(next);
    }
  }
  delivering_ = false;
}

void EventLog::setListener(Listener listener) {
  listener_ = std::move(listener);
}

void EventLog::setOutput(bool on) {
  output_ = on;
}

}  // namespace workbench
