#include "addon/rcgen/class_unit.h"

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "addon/foundation/path.h"
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

Time modified(RcFiles& files, const char* path) {
  const std::optional<RcFileStatus> status = files.status(path);
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

bool unitOutOfDate(RcFiles& files, const std::vector<String>& scripts, const String& header,
                   const String& implementation) {
  const Time header_time = modified(files, header);
  const Time implementation_time = modified(files, implementation);
  std::vector<Time> script_times;
  script_times.reserve(scripts.size());
  for (const String& script : scripts) {
    script_times.push_back(modified(files, script));
  }
  return isOutOfDate(header_time, implementation_time, script_times);
}

// The two files while they are made. A short script can ask for classes beyond any
// memory, so that they are written piece by piece.
class UnitOutput : private DialogDrain {
 public:
  UnitOutput(RcFiles& files, const ClassUnit& unit)
      : files_(files),
        header_{outputPath(unit, ".h"), {}},
        implementation_{outputPath(unit, ".cpp"), {}} {}

  void write(const std::vector<String>& scripts, std::string_view name) {
    appendFormat(header_.text,
                 "// Generated file : do not edit by hand\n#ifndef _rc%s_h_\n#define _rc%s_h_\n",
                 name, name);
    appendFormat(implementation_.text,
                 "// Generated file : do not edit by hand\n#include \"kesto.h\"\n"
                 "#include \"rc%s.h\"\n",
                 name);
    readScripts(scripts);
    if (name.empty()) {
      implementation_.text += "\nRCRCMAIN\n\n";
    }
    header_.text += "\n#endif\n";
    flush();
  }

 private:
  struct Output {
    String path;
    std::string text;
    bool created = false;
  };

  void readScripts(const std::vector<String>& scripts) {
    const std::unique_ptr<RcReader> reader(new (std::nothrow) RcReader);
    if (reader == nullptr) {
      return;
    }
    DialogEmitter emitter(header_.text, implementation_.text, this);
    std::string script;
    for (const String& path : scripts) {
      if (files_.read(path, script)) {
        reader->read(script, emitter);
      }
    }
  }

  void dialogWritten() override {
    if (header_.text.size() + implementation_.text.size() > kPiece) {
      flush();
    }
  }

  void flush() {
    for (Output* output : {&header_, &implementation_}) {
      if (!begun_) {
        files_.remove(output->path);
        output->created = files_.write(output->path, output->text);
      } else if (output->created) {
        files_.append(output->path, output->text);
      }
      output->text.clear();
    }
    begun_ = true;
  }

  static constexpr std::size_t kPiece = 1024UL * 1024;

  RcFiles& files_;
  Output header_;
  Output implementation_;
  bool begun_ = false;
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

void updateClassUnit(RcFiles& files, Folders& folders, const ClassUnit& unit) {
  if (!folders.enter(unit.directory)) {
    return;
  }
  const String header = outputPath(unit, ".h");
  const String implementation = outputPath(unit, ".cpp");
  const std::vector<String> scripts = scriptsOf(folders, unit.directory);
  if (!unitOutOfDate(files, scripts, header, implementation)) {
    return;
  }
  UnitOutput(files, unit).write(scripts, unit.name.view());
}

}  // namespace kesto
