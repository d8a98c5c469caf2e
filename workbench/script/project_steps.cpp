#include <charconv>
#include <cstdint>
#include <limits>

#include "workbench/events/event_log.h"
#include "workbench/message_list.h"
#include "workbench/messages/message_store.h"
#include "workbench/paths.h"
#include "workbench/project_content.h"
#include "workbench/projects.h"
#include "workbench/script/steps.h"

namespace workbench {
namespace {

constexpr std::size_t kNumberSize = 4;

StepResult noProject(StepTry& step) {
  return step.fail("no project is open");
}

// A node that an argument names; 0 with the reason set when there is none.
unsigned int nodeOf(StepTry& step, std::size_t index) {
  const unsigned int node = step.stage.content.findNode(step.arg(index));
  if (node == 0) {
    step.fail("the project has no node " + step.arg(index));
  }
  return node;
}

StepResult done(StepTry& step, bool result) {
  return result ? StepResult::kDone : step.fail("the project does not allow it");
}

// "#123" is a number of four bytes, least first; anything else is its own bytes
// and the zero that ends a text.
bool optionBytes(const std::string& word, std::string* bytes) {
  if (word.empty() || word[0] != '#') {
    *bytes = word;
    bytes->push_back('\0');
    return true;
  }
  std::int32_t number = 0;
  const char* end = word.data() + word.size();
  const auto [stop, fault] = std::from_chars(word.data() + 1, end, number);
  bytes->clear();
  for (std::size_t i = 0; i < kNumberSize; ++i) {
    bytes->push_back(static_cast<char>(static_cast<std::uint32_t>(number) >> (8 * i) & 0xFF));
  }
  return fault == std::errc() && stop == end && word.size() > 1;
}

Event optionEvent(const std::string& name, const std::string& bytes) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string hex;
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    hex += hex.empty() ? "" : " ";
    hex += kDigits[byte >> 4];
    hex += kDigits[byte & 15];
    number |= i < kNumberSize ? static_cast<std::uint32_t>(byte) << (8 * i) : 0;
  }
  const std::string text = bytes.substr(0, bytes.find('\0'));
  Event event("option");
  event.text("name", name).number("size", static_cast<long>(bytes.size())).text("text", text);
  if (bytes.size() == kNumberSize) {
    event.number("number", static_cast<std::int32_t>(number));
  }
  event.text("hex", hex);
  return event;
}

}  // namespace

StepResult stepNewProject(StepTry& step) {
  const bool made = step.stage.projects.newProject(step.arg(0));
  return made ? StepResult::kDone : step.fail("no project was made of " + step.arg(0));
}

StepResult stepSaveProject(StepTry& step) {
  const bool saved = step.stage.projects.saveProject();
  return saved ? StepResult::kDone : step.fail("the project was not saved");
}

StepResult stepBuildCommand(StepTry& step) {
  if (!step.stage.projects.hasProject()) {
    return noProject(step);
  }
  step.stage.content.setBuildCommand(step.arg(0));
  return StepResult::kDone;
}

StepResult stepOption(StepTry& step) {
  if (!step.stage.projects.hasProject()) {
    return noProject(step);
  }
  std::string bytes;
  if (step.argCount() == 1) {
    step.stage.content.readOption(step.arg(0), &bytes);
    step.stage.log.emit(optionEvent(step.arg(0), bytes));
    return StepResult::kDone;
  }
  if (!optionBytes(step.arg(1), &bytes)) {
    return step.fail("\"" + step.arg(1) + "\" is no 32-bit number");
  }
  return done(step, step.stage.content.writeOption(step.arg(0), bytes));
}

StepResult stepAddNode(StepTry& step) {
  const bool at_top = step.arg(0).empty();
  const unsigned int parent = at_top ? 0 : nodeOf(step, 0);
  if (!at_top && parent == 0) {
    return StepResult::kFailed;
  }
  return done(step, step.stage.content.addNode(parent, step.arg(1), step.arg(2)) != 0);
}

StepResult stepRenameNode(StepTry& step) {
  const unsigned int node = nodeOf(step, 0);
  return node == 0 ? StepResult::kFailed
                   : done(step, step.stage.content.renameNode(node, step.arg(1)));
}

StepResult stepRemoveNode(StepTry& step) {
  const unsigned int node = nodeOf(step, 0);
  return node == 0 ? StepResult::kFailed : done(step, step.stage.content.removeNode(node));
}

StepResult stepDescribeNode(StepTry& step) {
  const unsigned int node = nodeOf(step, 0);
  return node == 0 ? StepResult::kFailed
                   : done(step, step.stage.content.describeNode(node, step.arg(1)));
}

StepResult stepNodePath(StepTry& step) {
  long kind = 0;
  if (!step.number(1, 1, std::numeric_limits<int>::max(), &kind)) {
    return StepResult::kFailed;
  }
  const unsigned int node = nodeOf(step, 0);
  return node == 0 ? StepResult::kFailed
                   : done(step, step.stage.content.setNodePath(node, static_cast<int>(kind),
                                                               step.arg(2)));
}

StepResult stepMessageOpen(StepTry& step) {
  long position = 0;
  if (!step.number(0, 1, static_cast<long>(MessageStore::kMostMessages), &position)) {
    return StepResult::kFailed;
  }
  const bool shown = step.stage.messages.openMessage(static_cast<int>(position - 1));
  return shown ? StepResult::kDone : step.fail("message " + step.arg(0) + " leads nowhere");
}

StepResult dumpProject(StepTry& step) {
  if (!step.stage.projects.hasProject()) {
    return noProject(step);
  }
  std::vector<Event> items;
  for (const ProjectEntry& entry : step.stage.content.projectEntries()) {
    items.push_back(Event("")
                        .number("depth", entry.depth)
                        .text("name", entry.name)
                        .text("type", entry.type)
                        .text("description", entry.description));
  }
  step.stage.log.emit(Event("project-tree")
                          .text("directory", step.stage.paths.projectDirectory())
                          .list("items", items));
  return StepResult::kDone;
}

StepResult dumpMessages(StepTry& step) {
  std::vector<Event> items;
  for (const MessageGroupInfo& group : step.stage.messages.messages().groups()) {
    for (const Message& message : group.messages) {
      items.push_back(Event("")
                          .text("group", group.name)
                          .number("depth", message.depth)
                          .text("text", message.text)
                          .text("file", message.file)
                          .number("line", message.line)
                          .number("column", message.column)
                          .number("kind", message.kind));
    }
  }
  MessageList& list = step.stage.messages;
  const MessageGroupInfo* shown = list.messages().group(list.shownGroup());
  const auto selected = static_cast<std::size_t>(list.selectedMessage());
  const bool any = shown != nullptr && selected < shown->messages.size();
  step.stage.log.emit(Event("messages")
                          .text("shown", shown != nullptr ? shown->name : "")
                          .text("selected", any ? shown->messages[selected].text : "")
                          .list("items", items));
  return StepResult::kDone;
}

}  // namespace workbench
