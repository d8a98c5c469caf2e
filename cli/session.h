// One run of the program: the system, what is written and told, and how paths are shown.
// Made at the start; every command gets it.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "addon/foundation/folders.h"
#include "cli/output.h"
#include "cli/system.h"

namespace kesto::cli {

inline constexpr int kFound = 0;
inline constexpr int kNothing = 1;
inline constexpr int kError = 2;

class Session {
 public:
  // All must outlive it.
  Session(System& system, Output& output, Complaints& complaints);

  System& system() { return system_; }
  Output& output() { return output_; }
  Complaints& complaints() { return complaints_; }

  // Paths below it are shown as they follow what the person gave for it.
  void showBelow(const std::string& core, std::string_view given);
  // A path of the core as a person reads it: from what was given or from the current
  // directory on, else whole. Lives until another is asked for.
  const std::string& shown(std::string_view core);

  // The core's whole path of an existing folder; empty, and told, when it is none.
  std::string folder(std::string_view given);
  // The bytes of a file that was given, of standard input for "-". False, and told, when
  // they cannot be read.
  bool readGiven(const std::string& given, std::string& bytes);
  // Tells of a path of the core why the latest step failed.
  void tellFailure(std::string_view core);
  // Tells why nothing was listed in a folder of the core, if it is there.
  void tellUnlisted(const char* core);
  // The exit code of a command that was not cut short.
  int result(bool found) const;

 private:
  struct Shown {
    std::string disk;    // without a separator behind
    std::string given;   // what stands for it
    std::string prefix;  // and for it and the separator
  };

  System& system_;
  Output& output_;
  Complaints& complaints_;
  std::vector<Shown> shown_;
  // Of the latest path that was shown: hits come a file at a time.
  std::string latest_core_;
  std::string latest_shown_;
};

// Tells on a terminal how far a command is that lasts, and takes that away in the end.
class Progress : public WalkWatch {
 public:
  explicit Progress(Session& session);
  ~Progress() override;
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Ends the walk when nobody reads what it finds; tells of a walk that has come to its limit.
  bool goOn(int directories, int files) override;
  // So many of what there are in all, 0 when that is not known.
  void tell(int done, int all, const char* of_what);

 private:
  using Clock = std::chrono::steady_clock;

  bool isTime();

  Session& session_;
  bool on_terminal_;
  Clock::time_point next_;
};

}  // namespace kesto::cli
