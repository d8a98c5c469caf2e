#include "workbench/make/make_run.h"

#include "ideapi/ide_interfaces.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

// So much is taken at a time that the windows stay quick.
constexpr std::size_t kBytesATick = 64u << 10;
constexpr unsigned int kGroup = MessageStore::kBuildGroup;

}  // namespace

MakeRun::MakeRun(MessageStore& messages, MakeHost& host)
    : messages_(messages), host_(host), box_([this] { cancel(); }, [this] { poll(); }) {}

void MakeRun::begin(HWND owner, const std::string& command) {
  running_ = true;
  lines_ = warnings_ = errors_ = seconds_ = 0;
  began_ = GetTickCount();
  splitter_ = LineSplitter();
  box_.open(owner, command);
  showState("Starting");
  host_.makeStarted(command);
}

void MakeRun::start(HWND owner, const std::string& command, const std::string& folder) {
  folder_ = folder;
  begin(owner, command);
  // Earlier makes stay readable until there is no room for another.
  if (messages_.group(kGroup)->messages.size() > MessageStore::kMostMessages / 2) {
    messages_.clear(kGroup);
  }
  Message heading;
  heading.text = "Make: " + command;
  heading_ = messages_.add(kGroup, heading);
  std::string reason;
  if (!process_.start(command, folder, &reason)) {
    ++errors_;
    end(kMakeNotRun, "The command cannot be started: " + reason);
    return;
  }
  showState("Running");
}

void MakeRun::pretend(HWND owner, int result) {
  begin(owner, "(told by a script)");
  end(result, result == kMakeSucceeded ? "Done" : "Failed");
  close();
}

void MakeRun::poll() {
  if (!running_) {
    return;
  }
  // Asked before the last read, so that nothing written before the end is missed.
  DWORD code = 0;
  const bool ended = process_.ended(&code);
  std::string bytes;
  process_.read(kBytesATick, &bytes);
  std::vector<std::string> lines;
  splitter_.add(bytes, &lines);
  const bool all = ended && bytes.empty();
  if (all) {
    splitter_.finish(&lines);
  }
  takeLines(lines);
  if (!all) {
    showState("Running");
    const int now = static_cast<int>((GetTickCount() - began_) / 1000);
    if (now != seconds_) {
      seconds_ = now;
      host_.makeGoesOn(seconds_);
    }
    return;
  }
  process_.stop();
  if (code == UnixCommand::kNoProgram) {
    ++errors_;
    end(kMakeNotRun, "The command cannot be started: there is no such program.");
    return;
  }
  end(code == 0 ? kMakeSucceeded : kMakeFailed,
      code == 0 ? "Done" : "Failed with exit code " + std::to_string(code));
}

void MakeRun::takeLines(const std::vector<std::string>& lines) {
  for (const std::string& text : lines) {
    ++lines_;
    if (text.empty()) {
      continue;
    }
    const OutputLine line = parseOutputLine(text);
    errors_ += line.kind == kMessageError ? 1 : 0;
    warnings_ += line.kind == kMessageWarning ? 1 : 0;
    addMessage(line);
  }
}

void MakeRun::addMessage(const OutputLine& line) {
  Message message;
  message.parent = heading_;
  message.text = line.text;
  message.file = line.file.empty() || isAbsolutePath(line.file)
                     ? line.file
                     : normalPath(joinPath(folder_, line.file));
  message.line = line.line;
  message.column = line.column;
  message.kind = line.kind;
  messages_.add(kGroup, message);
}

void MakeRun::cancel() {
  if (running_) {
    process_.stop();
    std::vector<std::string> rest;
    splitter_.finish(&rest);
    takeLines(rest);
    end(kMakeCancelled, "Cancelled");
  }
}

void MakeRun::end(int result, const std::string& state) {
  running_ = false;
  showState(state);
  box_.ended();
  if (heading_ != 0) {
    OutputLine line;
    line.text = state;
    line.kind = result == kMakeSucceeded ? kMessageInformation : kMessageError;
    addMessage(line);
    heading_ = 0;
  }
  host_.makeEnded(result);
  // Only what went wrong has to be read.
  if (result == kMakeSucceeded && !running_) {
    box_.close();
  }
}

void MakeRun::close() {
  cancel();
  box_.close();
}

void MakeRun::showState(const std::string& state) {
  box_.show(state, lines_, warnings_, errors_);
}

}  // namespace workbench
