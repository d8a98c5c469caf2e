// The commands of the program, what can be asked of each, and what was asked. Plain values.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kesto::cli {

class Session;
class Request;

struct Option {
  const char* name;   // without "--"
  const char* value;  // what stands for its value in the help; null when it has none
  const char* help;
  bool is_list = false;  // takes all arguments up to the next option
};

struct Command {
  const char* name;
  const char* operands;  // as the help shows them
  std::size_t least;     // operands
  std::size_t most;
  const char* summary;
  const char* help;  // lines that follow, each with its line end
  std::span<const Option> options;
  int (*run)(Session& session, const Request& request);  // the exit code
};

inline constexpr std::size_t kAnyNumber = 100000;

// What every command takes.
extern const std::span<const Option> common_options;
extern const std::span<const Command> commands;
// Null when there is none of that name.
const Command* findCommand(std::string_view name);

class Request {
 public:
  std::vector<std::string> operands;

  bool has(std::string_view option) const { return values_.find(option) != values_.end(); }
  // The latest value, or what stands there by default.
  std::string value(std::string_view option, std::string_view by_default = {}) const;
  std::vector<std::string> values(std::string_view option) const;
  // All values with ";" between them, as the core has its lists.
  std::string list(std::string_view option, std::string_view by_default = {}) const;
  void give(const std::string& option, const std::string& value) {
    values_[option].push_back(value);
  }

 private:
  std::map<std::string, std::vector<std::string>, std::less<>> values_;
};

// Reads the arguments behind the command's name. False with a sentence for the user. Where
// help is asked for, the number of operands does not matter.
bool readArguments(const Command& command, const std::vector<std::string>& arguments,
                   Request& request, std::string& reason);

std::string helpOfAll();
std::string helpOf(const Command& command);

}  // namespace kesto::cli
