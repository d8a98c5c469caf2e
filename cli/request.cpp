#include "cli/request.h"

#include <algorithm>

namespace kesto::cli {
namespace {

const Option* findOption(const Command& command, std::string_view name) {
  for (const std::span<const Option> options : {command.options, common_options}) {
    const auto found = std::find_if(options.begin(), options.end(),
                                    [name](const Option& option) { return option.name == name; });
    if (found != options.end()) {
      return &*found;
    }
  }
  return nullptr;
}

// "-" alone is standard input.
bool looksLikeOption(std::string_view argument) {
  return argument.size() > 1 && argument.front() == '-';
}

class Reader {
 public:
  Reader(const Command& command, const std::vector<std::string>& arguments, Request& request,
         std::string& reason)
      : command_(command), arguments_(arguments), request_(request), reason_(reason) {}

  bool read() {
    while (next_ < arguments_.size()) {
      const std::string& argument = arguments_[next_++];
      if (argument == "--") {
        request_.operands.insert(request_.operands.end(), arguments_.begin() + position(),
                                 arguments_.end());
        next_ = arguments_.size();
      } else if (!looksLikeOption(argument)) {
        request_.operands.push_back(argument);
      } else if (!readOption(argument == "-h" ? "--help" : argument)) {
        return false;
      }
    }
    return request_.has("help") || judgeOperands();
  }

 private:
  std::ptrdiff_t position() const { return static_cast<std::ptrdiff_t>(next_); }

  bool readOption(const std::string& argument) {
    const std::size_t equals = argument.find('=');
    const std::string given = argument.substr(0, equals);
    const Option* option =
        given.starts_with("--") ? findOption(command_, std::string_view(given).substr(2)) : nullptr;
    if (option == nullptr) {
      return fail("there is no option " + given);
    }
    const bool has_value = equals != std::string::npos;
    if (option->value == nullptr) {
      request_.give(option->name, {});
      return !has_value || fail(given + " takes no value");
    }
    if (has_value) {
      request_.give(option->name, argument.substr(equals + 1));
      return true;
    }
    if (next_ == arguments_.size() || (looksLikeOption(arguments_[next_]) && option->is_list)) {
      return fail(given + " needs a value: " + option->value);
    }
    do {
      request_.give(option->name, arguments_[next_++]);
    } while (option->is_list && next_ < arguments_.size() && !looksLikeOption(arguments_[next_]));
    return true;
  }

  bool judgeOperands() {
    if (request_.operands.size() < command_.least) {
      return fail(std::string("it needs ") + command_.operands);
    }
    return request_.operands.size() <= command_.most ||
           fail("there is nothing to do with \"" + request_.operands[command_.most] + "\"");
  }

  bool fail(const std::string& reason) {
    reason_ = reason;
    return false;
  }

  const Command& command_;
  const std::vector<std::string>& arguments_;
  Request& request_;
  std::string& reason_;
  std::size_t next_ = 0;
};

void appendOptions(std::string& help, std::span<const Option> options) {
  constexpr std::size_t kColumn = 24;
  for (const Option& option : options) {
    std::string line = "  --" + std::string(option.name);
    if (option.value != nullptr) {
      line += ' ';
      line += option.value;
    }
    if (line.size() + 2 > kColumn) {
      line += '\n';
      line.append(kColumn, ' ');
    } else {
      line.resize(kColumn, ' ');
    }
    help += line + option.help + '\n';
  }
}

}  // namespace

const Command* findCommand(std::string_view name) {
  const auto found = std::find_if(commands.begin(), commands.end(),
                                  [name](const Command& command) { return command.name == name; });
  return found != commands.end() ? &*found : nullptr;
}

std::string Request::value(std::string_view option, std::string_view by_default) const {
  const auto found = values_.find(option);
  return found != values_.end() ? found->second.back() : std::string(by_default);
}

std::vector<std::string> Request::values(std::string_view option) const {
  const auto found = values_.find(option);
  return found != values_.end() ? found->second : std::vector<std::string>();
}

std::string Request::list(std::string_view option, std::string_view by_default) const {
  std::string joined;
  for (const std::string& one : values(option)) {
    joined += joined.empty() ? one : ';' + one;
  }
  return has(option) ? joined : std::string(by_default);
}

bool readArguments(const Command& command, const std::vector<std::string>& arguments,
                   Request& request, std::string& reason) {
  return Reader(command, arguments, request, reason).read();
}

std::string helpOfAll() {
  constexpr std::size_t kColumn = 12;
  std::string help =
      "usage: kesto-cli COMMAND [ARGUMENT...]\n\n"
      "What Kesto does to a project's texts, without the IDE.\n\n";
  for (const Command& command : commands) {
    std::string line = "  " + std::string(command.name);
    line.resize(kColumn + 2, ' ');
    help += line + command.summary + '\n';
  }
  help +=
      "\n  --help      this, or behind a command that command's own\n"
      "  --version   the version of Kesto\n\n"
      "Every command takes --json. The exit code is 0 when something was found or done, 1\n"
      "when nothing was found, and 2 after an error, of which standard error tells.\n";
  return help;
}

std::string helpOf(const Command& command) {
  std::string help = "usage: kesto-cli " + std::string(command.name) + ' ' + command.operands +
                     " [OPTION...]\n\n" + command.summary + ".\n";
  if (*command.help != '\0') {
    help += '\n';
    help += command.help;
  }
  help += '\n';
  appendOptions(help, command.options);
  appendOptions(help, common_options);
  return help;
}

}  // namespace kesto::cli
