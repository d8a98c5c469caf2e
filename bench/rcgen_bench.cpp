// rcgen_bench DIRECTORY   makes a project there, and prints the best times of the runs over
//                         it in milliseconds, and counts; a name and a number each
//
// "plain" reads the bytes that the first run reads and writes those that it writes, and
// deletes the files before as that run does; nothing is composed.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "addon/foundation/message_box.h"
#include "addon/foundation/text_file.h"
#include "addon/rcgen/generator_run.h"
#include "bench/turns.h"
#include "cli/posix/disk_files.h"
#include "cli/posix/disk_listing.h"

namespace kesto {

int showMessage(void* /*owner*/, const char* text, const char* /*caption*/, unsigned /*flags*/) {
  fprintf(stderr, "%s\n", text);
  return kAnswerOk;
}

namespace {

namespace fs = std::filesystem;

constexpr int kUnits = 24;
constexpr int kScriptsOfUnit = 10;
constexpr int kDialogsOfScript = 6;
constexpr int kRounds = 31;

// What was done through it, besides doing it.
class NotingFiles : public cli::DiskFiles {
 public:
  explicit NotingFiles(cli::DiskNames& names) : DiskFiles(names), names_(names) {}

  std::vector<std::string> reads;
  std::map<std::string, std::string> writes;  // by the paths where they came to stand

  bool read(const char* path, std::string& text) override {
    if (noting_) {
      reads.emplace_back(names_.diskPath(path));
    }
    return DiskFiles::read(path, text);
  }
  bool write(const char* path, std::string_view text) override {
    if (noting_) {
      growing_[path] = text;
    }
    return DiskFiles::write(path, text);
  }
  bool append(const char* path, std::string_view text) override {
    if (noting_) {
      growing_[path] += text;
    }
    return DiskFiles::append(path, text);
  }
  bool replace(const char* path, const char* new_path) override {
    if (noting_) {
      writes[names_.diskPath(new_path)] = growing_[path];
    }
    return DiskFiles::replace(path, new_path);
  }

  // Noting takes time of its own.
  void setNoting(bool noting) {
    noting_ = noting;
    reads.clear();
    writes.clear();
  }

 private:
  cli::DiskNames& names_;
  std::map<std::string, std::string> growing_;
  bool noting_ = false;
};

class NoNotices : public GeneratorNotices {
 public:
  void notice(const std::string& /*text*/) override {}
};

struct Host {
  cli::DiskNames names;
  cli::DiskListing lister{names};
  NotingFiles files{names};
  NoNotices notices;

  void run(const std::string& directory, GeneratorSwitches switches, std::int32_t& build_number) {
    runGenerator({lister, files, notices}, directory, switches, build_number);
  }
};

std::string scriptText(int number) {
  constexpr const char* kControls[] = {"\"edit\", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP",
                                       "\"button\", BS_AUTOCHECKBOX",
                                       "\"combobox\", CBS_DROPDOWN | WS_VSCROLL",
                                       "\"SysListView32\", LVS_REPORT", "\"static\", SS_LEFT"};
  std::string text = "#include <windows.h>\n";
  for (int i = 0; i < 60; ++i) {
    text += "#define IDC_FIELD" + std::to_string(i) + "  " + std::to_string(100 + i) + "\n";
  }
  const std::string stem = std::to_string(number);
  text += "\nMENU" + stem + " MENU DISCARDABLE\n{\n POPUP \"&File\"\n {\n";
  for (int i = 0; i < 20; ++i) {
    text += "  MENUITEM \"&Entry\\tCtrl+E\", IDC_FIELD" + std::to_string(i) + "\n";
  }
  text += " }\n}\n";
  for (int dialog = 0; dialog < kDialogsOfScript; ++dialog) {
    text += "\nDLG";
    text += stem;
    text += 'X';
    text += std::to_string(dialog);
    text += " DIALOG 0, 0, 200, 100\nSTYLE DS_MODALFRAME | WS_POPUP | WS_CAPTION\nMENU MENU";
    text += stem;
    text += "\nFONT 8, \"MS Sans Serif\"\n{\n";
    for (int i = 0; i < 30; ++i) {
      text += " CONTROL \"A text, of it\", IDC_FIELD";
      text += std::to_string((i * 7 + dialog) % 60);
      text += ", ";
      text += kControls[i % 5];
      text += ", 10, 10, 80, 12\n";
    }
    text += " CONTROL \"OK\", IDOK, \"button\", BS_DEFPUSHBUTTON, 10, 80, 40, 14\n}\n";
  }
  return text;
}

struct Project {
  int scripts = 0;
  std::size_t bytes = 0;
};

Project makeProject(const std::string& directory) {
  Project made;
  for (int unit = 0; unit < kUnits; ++unit) {
    const std::string folder = directory + "/unit" + std::to_string(unit);
    fs::create_directory(folder);
    for (int i = 0; i < kScriptsOfUnit; ++i) {
      const std::string text = scriptText(made.scripts);
      writeTextFile((folder + "/part" + std::to_string(i) + ".rc").c_str(), text);
      ++made.scripts;
      made.bytes += text.size();
    }
  }
  return made;
}

void makeVersions(const std::string& directory) {
  std::string text;
  for (int i = 0; i < 2000; ++i) {
    text += i % 50 == 0 ? "FILEVERSION 1,2,3,4\n"
                        : "   VALUE \"FileDescription\", \"What it is\\000\\000\"\n";
  }
  for (int unit = 0; unit < kUnits; ++unit) {
    writeTextFile((directory + "/unit" + std::to_string(unit) + "/VERSION.RC").c_str(), text);
  }
}

void removeAll(const std::map<std::string, std::string>& outputs) {
  for (const auto& output : outputs) {
    unlink(output.first.c_str());
  }
}

// What a run with these switches costs, and what its reading and writing alone does.
void compare(const char* name, const char* plain_name, const std::string& directory,
             GeneratorSwitches switches, Host& host) {
  NotingFiles& files = host.files;
  std::int32_t build_number = 0;
  files.setNoting(true);
  host.run(directory, switches, build_number);
  const std::vector<std::string> reads = files.reads;
  const std::map<std::string, std::string> writes = files.writes;
  files.setNoting(false);
  std::string text;
  const auto prepare = [&] {
    removeAll(writes);
    if (switches.version_stamping) {
      makeVersions(directory);
    }
  };
  Turns turns;
  turns.add(
      name, [&] { host.run(directory, switches, build_number); }, prepare);
  turns.add(
      plain_name,
      [&] {
        for (const std::string& path : reads) {
          readTextFile(path.c_str(), text);
        }
        for (const auto& output : writes) {
          writeTextFile(output.first.c_str(), output.second);
        }
      },
      prepare);
  turns.run(kRounds);
}

int measure(const std::string& directory) {
  const Project project = makeProject(directory);
  printf("scripts %d\nscript-bytes %zu\n", project.scripts, project.bytes);
  Host host;
  NotingFiles& files = host.files;
  std::int32_t build_number = 0;
  constexpr GeneratorSwitches kClasses = {true, false};

  files.setNoting(true);
  host.run(directory, kClasses, build_number);
  const std::map<std::string, std::string> outputs = files.writes;
  std::size_t bytes = 0;
  for (const auto& output : outputs) {
    bytes += output.second.size();
  }
  printf("outputs %zu\noutput-bytes %zu\n", outputs.size(), bytes);
  files.setNoting(true);
  host.run(directory, kClasses, build_number);
  printf("second-reads %zu\nsecond-writes %zu\n", files.reads.size(), files.writes.size());
  files.setNoting(false);
  Turns turns;
  turns.add("second", [&] { host.run(directory, kClasses, build_number); });
  turns.run(kRounds);

  removeAll(outputs);
  compare("first", "plain", directory, kClasses, host);
  makeVersions(directory);
  compare("stamp", "stamp-plain", directory, {false, true}, host);
  printf("stamped %d\n", kUnits);
  return 0;
}

}  // namespace

}  // namespace kesto

int main(int argc, char** argv) {
  return argc == 2 ? kesto::measure(argv[1]) : 2;
}
