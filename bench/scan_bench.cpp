// scan_bench MAKE FILE   writes the deterministic source that is measured
// scan_bench FILE        prints the best times of the scans of FILE, in milliseconds:
//                        copy, copy-lines, functions, includes; a name and a number each
//
// "copy" is one memcpy of the whole text into a buffer touched before; "copy-lines"
// finds each line's end with memchr and copies line after line.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "addon/foundation/message_box.h"
#include "addon/navigation/source_scanner.h"
#include "bench/turns.h"

namespace kesto {

int showMessage(void* /*owner*/, const char* text, const char* /*caption*/, unsigned /*flags*/) {
  fprintf(stderr, "%s\n", text);
  return kAnswerOk;
}

namespace {

constexpr int kLines = 100000;
constexpr int kRounds = 51;

// Reproducible on every machine, unlike the library's generators' distributions.
class Dice {
 public:
  unsigned operator()(unsigned sides) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<unsigned>(state_ >> 33) % sides;
  }

 private:
  std::uint64_t state_ = 20;
};

class SourceMaker {
 public:
  std::string make() {
    line({"// Accounts and their windows."});
    for (int i = 0; i < 40; ++i) {
      line({"#include \"", name(), ".h\""});
    }
    while (lines_ < kLines) {
      function();
    }
    return source_;
  }

 private:
  void line(std::initializer_list<std::string_view> parts) {
    if (lines_ < kLines) {
      for (const std::string_view part : parts) {
        source_ += part;
      }
      source_ += "\r\n";
      ++lines_;
    }
  }

  std::string name() {
    static constexpr const char* kParts[] = {"Account", "total",  "Frame", "count",
                                             "paint",   "window", "Line",  "buffer",
                                             "find",    "Index",  "size",  "open"};
    std::string all = kParts[dice_(std::size(kParts))];
    for (unsigned more = dice_(3); more > 0; --more) {
      all += kParts[dice_(std::size(kParts))];
    }
    return all;
  }

  void function() {
    static constexpr const char* kTypes[] = {"int ", "void ", "static long ", "const char *",
                                             "BOOL "};
    line({});
    if (dice_(2) == 0) {
      line({"// Keeps the ", name(), " in step with the ", name(), "."});
    }
    const char* const type = kTypes[dice_(std::size(kTypes))];
    if (dice_(3) == 0) {
      line({type, name(), "(int ", name(), ", char *", name(), ")"});
    } else {
      line({type, "T", name(), "::", name(), "(int ", name(), ", char *", name(), ")"});
    }
    line({"{"});
    for (unsigned statements = 6 + dice_(40); statements > 0; --statements) {
      statement();
    }
    line({"}"});
  }

  void statement() {
    switch (dice_(8)) {
      case 0:
        line({});
        break;
      case 1:
        line({"    if (", name(), " == ", name(), "(", name(), ")) {"});
        line({"        return ", name(), ";"});
        line({"    }"});
        break;
      case 2:
        line({"    // ", name(), " may be empty here, ", name(), " never is"});
        break;
      case 3:
        line({"    for (int i = 0; i < ", name(), "; i++)"});
        line({"        ", name(), "[i] = ", name(), "(i, \"", name(), "\");"});
        break;
      default:
        line({"    ", name(), " = ", name(), " + ", name(), "->", name(), ";"});
        break;
    }
  }

  Dice dice_;
  std::string source_;
  int lines_ = 0;
};

// Keeps the compiler from dropping a copy that nobody reads.
void touch(const void* memory) {
  asm volatile("" : : "g"(memory) : "memory");
}

void copyLines(const std::string& text, char* copy) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    const void* found = memchr(at, '\n', static_cast<std::size_t>(end - at));
    const char* next = found == nullptr ? end : static_cast<const char*>(found) + 1;
    memcpy(copy, at, static_cast<std::size_t>(next - at));
    copy += next - at;
    at = next;
  }
}

int measure(const char* path) {
  std::ifstream file(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  const auto copy = std::make_unique<char[]>(text.size() + 1);
  Tableau<Fnc> functions;
  Tableau<String> includes;
  Turns turns;
  turns.add("copy", [&] {
    memcpy(copy.get(), text.data(), text.size());
    touch(copy.get());
  });
  turns.add("copy-lines", [&] {
    copyLines(text, copy.get());
    touch(copy.get());
  });
  turns.add("functions", [&] { scanFunctions(text, functions); });
  turns.add("includes", [&] { scanIncludes(text, includes); });
  turns.run(kRounds);
  fprintf(stderr, "%zu bytes, %d functions, %d includes\n", text.size(), functions.count(),
          includes.count());
  return functions.count() > 0 && includes.count() > 0 ? 0 : 1;
}

int make(const char* path) {
  std::ofstream file(path, std::ios::binary);
  file << SourceMaker().make();
  return file.flush().good() ? 0 : 1;
}

}  // namespace

}  // namespace kesto

int main(int argc, char** argv) {
  if (argc == 3 && strcmp(argv[1], "MAKE") == 0) {
    return kesto::make(argv[2]);
  }
  return argc == 2 ? kesto::measure(argv[1]) : 2;
}
