// kesto-cli: what Kesto does to texts, without the IDE.
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "addon/foundation/message_box.h"
#include "addon/foundation/version.h"
#include "cli/request.h"
#include "cli/session.h"

namespace kesto {

namespace {

cli::Complaints* complaints = nullptr;

}  // namespace

// What the core tells in a box.
int showMessage(void* /*owner*/, const char* text, const char* /*caption*/, unsigned /*flags*/) {
  complaints->tell({}, text);
  return kAnswerOk;
}

namespace cli {
namespace {

int refuse(Complaints& told, const std::string& reason, const std::string& command) {
  told.tell({}, reason);
  told.note({}, "kesto-cli " + command + (command.empty() ? "" : " ") + "--help tells more");
  return kError;
}

bool hasColour(System& system) {
  const char* const none = getenv("NO_COLOR");
  const char* const terminal = getenv("TERM");
  return (none == nullptr || *none == '\0') && terminal != nullptr &&
         strcmp(terminal, "dumb") != 0 && system.isTerminal(stdout);
}

// Of a text that was asked for.
int print(Output& output, const std::string& text) {
  output.line(text.substr(0, text.size() - 1));
  return kFound;
}

int runCommand(const std::vector<std::string>& arguments, System& system, Output& output,
               Complaints& told) {
  if (arguments.empty()) {
    return refuse(told, "there is no command", "");
  }
  const std::string& name = arguments[0];
  if (name == "--help" || name == "-h") {
    return print(output, helpOfAll());
  }
  if (name == "--version") {
    return print(output, "kesto-cli " KESTO_VERSION "\n");
  }
  const Command* command = findCommand(name);
  if (command == nullptr) {
    return refuse(told, "there is no command \"" + name + '"', "");
  }
  Request request;
  std::string reason;
  if (!readArguments(*command, {arguments.begin() + 1, arguments.end()}, request, reason)) {
    return refuse(told, name + ": " + reason, name);
  }
  if (request.has("help")) {
    return print(output, helpOf(*command));
  }
  output.setStyle(
      {request.has("json"), hasColour(system), system.isTerminal(stdout), system.isUtf8()});
  Session session(system, output, told);
  return command->run(session, request);
}

int run(const std::vector<std::string>& arguments) {
  Complaints told;
  complaints = &told;
  const std::unique_ptr<System> system = openSystem();
  Output output(stdout, told);
  const int code = runCommand(arguments, *system, output, told);
  if (const int fault = output.finish(); fault != 0) {
    told.tell("standard output", strerror(fault));
    return kError;
  }
  return code;
}

}  // namespace
}  // namespace cli
}  // namespace kesto

int main(int argc, char** argv) {
  return kesto::cli::run({argv + (argc > 0 ? 1 : 0), argv + argc});
}
