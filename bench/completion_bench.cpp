// completion_bench MAKE DIRECTORY    writes 20 keyword files with 100,000 keywords in all, the
//                                    keywords alone, sorted, into "sorted", and prefixes into
//                                    "prefixes", all of them in DIRECTORY
// completion_bench DIRECTORY         prints the best times over them in milliseconds; a name
//                                    and a number each
// completion_bench COUNT DIRECTORY   prints how many keywords begin with each prefix
//
// "read" reads the files' texts and "read-lines" their lines with fgets, as the format has
// them; "load" makes the sorted list of them. "strikes" answers to every prefix. Memory that
// is given back is kept for the next round: what the system takes to hand it out depends on
// everything but these.
#include <malloc.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "addon/completion/completion.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/text_file.h"
#include "bench/turns.h"
#include "cli/posix/disk_files.h"

namespace kesto {

int showMessage(void* /*owner*/, const char* text, const char* /*caption*/, unsigned /*flags*/) {
  fprintf(stderr, "%s\n", text);
  return kAnswerOk;
}

namespace {

constexpr std::size_t kKeywords = 100000;
constexpr std::size_t kFiles = 20;
constexpr std::size_t kPrefixes = 500;
constexpr int kRounds = 31;
constexpr int kKeptMemory = 256 * 1024 * 1024;

// Reproducible on every machine, unlike the library's generators' distributions.
class Dice {
 public:
  unsigned operator()(unsigned sides) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<unsigned>(state_ >> 33) % sides;
  }

 private:
  std::uint64_t state_ = 11;
};

std::string fileName(const std::string& directory, std::size_t number) {
  return directory + "/words" + std::to_string(number) + ".kwd";
}

// Names as programs have them: three to five parts, words in different cases.
std::string nameOf(Dice& dice) {
  static constexpr const char* kParts[] = {
      "Get",  "Set",   "account", "Window", "text",  "Line",  "buffer", "find", "Index", "size",
      "open", "Close", "next",    "Item",   "count", "Total", "paint",  "Key",  "Color", "draw",
      "Path", "Name",  "list",    "Insert", "row",   "Edit",  "Mode",   "undo", "scan",  "Time"};
  std::string name;
  for (unsigned parts = 3 + dice(3); parts > 0; --parts) {
    name += kParts[dice(std::size(kParts))];
    name += dice(4) == 0 ? "_" : "";
  }
  return name;
}

int make(const std::string& directory) {
  Dice dice;
  std::set<std::string> names;
  std::vector<std::string> texts(kFiles);
  std::string prefixes;
  while (names.size() < kKeywords) {
    const auto [name, is_new] = names.insert(nameOf(dice));
    if (is_new) {
      // Most describe themselves; the files are in no order.
      std::string& text = texts[dice(kFiles)];
      text += *name;
      text += dice(4) == 0 ? "" : "|int " + *name + "(const char *" + nameOf(dice) + ", int)";
      text += '\n';
      if (names.size() % (kKeywords / kPrefixes) == 0) {
        prefixes += name->substr(0, 1 + dice(static_cast<unsigned>(name->size()))) + '\n';
      }
    }
  }
  bool written = true;
  const auto write = [&](const std::string& path, const std::string& text) {
    written = written && writeTextFile(path.c_str(), text);
  };
  for (std::size_t i = 0; i < kFiles; ++i) {
    write(fileName(directory, i), texts[i]);
  }
  std::string sorted;
  for (const std::string& name : names) {
    sorted += name + '\n';
  }
  write(directory + "/sorted", sorted);
  write(directory + "/prefixes", prefixes);
  return written ? 0 : 1;
}

struct Data {
  cli::DiskNames names;
  cli::DiskFiles files{names};
  Tableau<String> paths;
  std::vector<std::string> prefixes;

  explicit Data(const std::string& directory) {
    for (std::size_t i = 0; i < kFiles; ++i) {
      paths.append(new String(fileName(directory, i).c_str()));
    }
    std::ifstream lines(directory + "/prefixes");
    for (std::string line; std::getline(lines, line);) {
      prefixes.push_back(line);
    }
  }
};

struct CloseFile {
  void operator()(FILE* file) const { fclose(file); }
};

int measure(const std::string& directory) {
  mallopt(M_TRIM_THRESHOLD, kKeptMemory);
  mallopt(M_MMAP_THRESHOLD, kKeptMemory);
  Data data(directory);
  std::size_t bytes = 0;
  std::size_t said = 0;
  Turns turns;
  turns.add("read", [&] {
    bytes = 0;
    std::vector<std::string> texts(kFiles);
    for (std::size_t i = 0; i < kFiles; ++i) {
      data.files.read(*data.paths.at(static_cast<int>(i)), texts[i]);
      bytes += texts[i].size();
    }
  });
  turns.add("read-lines", [&] {
    for (int i = 0; i < data.paths.count(); ++i) {
      const std::unique_ptr<FILE, CloseFile> file(fopen(data.paths.at(i)->text(), "r"));
      char line[kKeywordLineSize];
      while (file != nullptr && fgets(line, sizeof line, file.get()) != nullptr) {
        said += strlen(line);
      }
    }
  });
  turns.add("load", [&] {
    Completion completion;
    completion.load(data.files, data.paths);
  });
  Completion loaded;
  loaded.load(data.files, data.paths);
  turns.add("strikes", [&] {
    for (const std::string& prefix : data.prefixes) {
      said += loaded.strike(prefix).status.size();
    }
  });
  turns.run(kRounds);
  printf("bytes %zu\nprefixes %zu\n", bytes, data.prefixes.size());
  return loaded.keywords().count() == static_cast<int>(kKeywords) && said > 0 ? 0 : 1;
}

int count(const std::string& directory) {
  Data data(directory);
  Completion loaded;
  loaded.load(data.files, data.paths);
  for (const std::string& prefix : data.prefixes) {
    const KeywordList::Range range = loaded.keywords().beginningWith(prefix);
    printf("%d\n", range.last - range.first + 1);
  }
  return 0;
}

}  // namespace

}  // namespace kesto

int main(int argc, char** argv) {
  if (argc == 3 && strcmp(argv[1], "MAKE") == 0) {
    return kesto::make(argv[2]);
  }
  if (argc == 3 && strcmp(argv[1], "COUNT") == 0) {
    return kesto::count(argv[2]);
  }
  return argc == 2 ? kesto::measure(argv[1]) : 2;
}
