#include "addon/rcgen/class_unit.h"

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "addon/foundation/path.h"
#include "addon/foundation/safe_write.h"
#include "addon/foundation/text_file.h"
#include "addon/rcgen/dialog_emitter.h"
#include "addon/rcgen/rc_reader.h"
#include "addon/rcgen/text_format.h"

namespace kesto {

namespace {

using Time = std::optional<std::int64_t>;

String outputPath(const ClassUnit& unit, const char* extension) {
  String name("rc");
  name += unit.name;
  name += extension;
  return joinPath(unit.directory.view(), name.view());
}

Time modified(FileSystem& files, const char* path) {
  const std::optional<FileStatus> status = files.status(path);
  return status ? Time(status->modified) : Time();
}

std::vector<String> scriptsOf(Folders& folders, const String& directory) {
  std::vector<String> paths;
  for (const std::string& name : folders.files(directory, FileMask("*.rc"))) {
    if (!name.starts_with('.')) {
      paths.push_back(joinPath(directory.view(), name));
    }
  }
  return paths;
}

std::vector<Time> timesOf(FileSystem& files, const std::vector<String>& paths) {
  std::vector<Time> times;
  times.reserve(paths.size());
  for (const String& path : paths) {
    times.push_back(modified(files, path));
  }
  return times;
}

// The new texts of the two files. A short script can ask for classes beyond any memory,
// so that they are written piece by piece.
class UnitOutput : private DialogDrain {
 public:
  UnitOutput(const GeneratorHost& host, const String& header, const String& implementation)
      : host_(host),
        header_(host.files, header.view()),
        implementation_(host.files, implementation.view()) {}

  void compose(const std::vector<String>& scripts, std::string_view name) {
    appendFormat(header_text_,
                 "// Generated file : do not edit by hand\n#ifndef _rc%s_h_\n#define _rc%s_h_\n",
                 name, name);
    appendFormat(implementation_text_,
                 "// Generated file : do not edit by hand\n#include \"kesto.h\"\n"
                 "#include \"rc%s.h\"\n",
                 name);
    readScripts(scripts);
    if (name.empty()) {
      implementation_text_ += "\nRCRCMAIN\n\n";
    }
    header_text_ += "\n#endif\n";
    flush();
  }

  bool put(bool header_last) {
    return header_last ? putBoth(implementation_, header_) : putBoth(header_, implementation_);
  }

 private:
  void readScripts(const std::vector<String>& scripts) {
    const std::unique_ptr<RcReader> reader(new (std::nothrow) RcReader);
    if (reader == nullptr) {
      return;
    }
    DialogEmitter emitter(header_text_, implementation_text_, this);
    std::string script;
    for (const String& path : scripts) {
      if (!host_.files.read(path, script)) {
        continue;
      }
      if (isUtf16(script)) {
        host_.notices.notice(host_.notices.shown(path.view()) +
                             " is UTF-16: no classes are made of it");
      } else {
        reader->read(script, emitter);
      }
    }
  }

  void dialogWritten() override {
    if (header_text_.size() + implementation_text_.size() > kPiece) {
      flush();
    }
  }

  void flush() {
    header_.write(header_text_);
    header_text_.clear();
    implementation_.write(implementation_text_);
    implementation_text_.clear();
  }

  static constexpr std::size_t kPiece = 1024UL * 1024;

  const GeneratorHost& host_;
  SafeFile header_;
  SafeFile implementation_;
  std::string header_text_;
  std::string implementation_text_;
};

}  // namespace

bool isOutOfDate(Time header, Time implementation, std::span<const Time> scripts) {
  if (!header || !implementation) {
    return true;
  }
  const std::int64_t older = std::min(*header, *implementation);
  return std::any_of(scripts.begin(), scripts.end(),
                     [older](Time script) { return !script || *script > older; });
}

void updateClassUnit(const GeneratorHost& host, Folders& folders, const ClassUnit& unit) {
  if (!folders.enter(unit.directory)) {
    return;
  }
  const String header = outputPath(unit, ".h");
  const String implementation = outputPath(unit, ".cpp");
  const Time header_time = modified(host.files, header);
  const Time implementation_time = modified(host.files, implementation);
  const std::vector<String> scripts = scriptsOf(folders, unit.directory);
  if (!isOutOfDate(header_time, implementation_time, timesOf(host.files, scripts))) {
    return;
  }
  UnitOutput output(host, header, implementation);
  output.compose(scripts, unit.name.view());
  // As long as the missing or older one stays, so does what makes the unit out of date.
  if (!output.put(header_time < implementation_time)) {
    host.notices.notice("The classes in " + host.notices.shown(unit.directory.view()) +
                        " could not be written");
  }
}

}  // namespace kesto
