#include "addon/completion/completion_engine.h"

#include <string>

#include "addon/completion/keyword_extraction.h"
#include "addon/foundation/file_system_win.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/tableau.h"

namespace kesto {

CompletionEngine* completionEngine = nullptr;

namespace {

constexpr char kWarning[] = "Warning";

class BoxQuestion : public ReplaceQuestion {
 public:
  explicit BoxQuestion(void* owner) : owner_(owner) {}
  bool mayReplace(const char* keyword_file) override {
    const std::string text =
        std::string(keyword_file) + "\nholds descriptions that would be lost. Replace it ?";
    return showMessage(owner_, text.c_str(), kWarning, kMessageYesNo | kMessageIconQuestion) ==
           kAnswerYes;
  }

 private:
  void* owner_;
};

}  // namespace

CompletionEngine::CompletionEngine() {
  settings.section.read();
  load();
}

CompletionEngine::~CompletionEngine() {
  if (completionSource == this) {
    completionSource = nullptr;
  }
  settings.section.write();
}

void CompletionEngine::load() {
  Tableau<String> paths;
  for (const std::string& path : settings.files.value) {
    paths.append(new String(path));
  }
  FileSystemWin files;
  completion_.load(files, paths);
  completionSource = paths.count() > 0 ? this : nullptr;
}

String extractKeywordsOf(void* owner, const char* source) {
  FileSystemWin files;
  BoxQuestion question(owner);
  switch (extractKeywordFile(files, source, question)) {
    case Extraction::kDone:
      return keywordFilePath(source);
    case Extraction::kFailed:
      showMessage(owner, "Impossible to extract keywords", kWarning,
                  kMessageOk | kMessageIconExclamation);
      break;
    case Extraction::kKept:
      break;
  }
  return {};
}

}  // namespace kesto
