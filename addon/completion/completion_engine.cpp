#include "addon/completion/completion_engine.h"

#include <memory>
#include <string>

#include "addon/completion/keyword_extraction.h"
#include "addon/foundation/file_system_win.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/path.h"
#include "addon/foundation/settings_store.h"

namespace kesto {

CompletionEngine* completionEngine = nullptr;

namespace {

constexpr char kSection[] = "Completion";
constexpr char kFiles[] = "Files";
constexpr char kMissing[] = "not found";
constexpr char kWarning[] = "Warning";
// The key left of Enter on a US keyboard.
constexpr int kDefaultKeyCode = 222;

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
  enabled_ = settings().readInteger(kSection, "Enabled", 1);
  key_code_ = settings().readInteger(kSection, "KeyCode", kDefaultKeyCode);
  char text[SettingsStore::kValueSize] = "";
  settings().readString(kSection, "TextCode", text, sizeof text, "???");
  key_text_ = text;
  settings().readList(kSection, kFiles, keyword_files_);
  for (int i = keyword_files_.count(); i-- > 0;) {
    if (*keyword_files_.at(i) == kMissing) {
      keyword_files_.removeAndDelete(i);
    }
  }
  load();
}

CompletionEngine::~CompletionEngine() {
  if (completionSource == this) {
    completionSource = nullptr;
  }
  settings().writeInteger(kSection, "Enabled", enabled_);
  settings().writeInteger(kSection, "KeyCode", key_code_);
  settings().writeString(kSection, "TextCode", key_text_);
  settings().writeList(kSection, kFiles, keyword_files_);
}

void CompletionEngine::load() {
  FileSystemWin files;
  completion_.load(files, keyword_files_);
  completionSource = keyword_files_.count() > 0 ? this : nullptr;
}

void CompletionEngine::addKeywordFile(const char* path) {
  bool listed = false;
  for (int i = 0; i < keyword_files_.count(); ++i) {
    listed = listed || equalIgnoringCase(keyword_files_.at(i)->view(), path);
  }
  if (!listed) {
    keyword_files_.append(new String(path));
  }
  load();
}

void addExtractedKeywords(void* owner, const char* source) {
  FileSystemWin files;
  BoxQuestion question(owner);
  switch (extractKeywordFile(files, source, question)) {
    case Extraction::kDone:
      // The environment may have closed while the question stood.
      if (completionEngine != nullptr) {
        completionEngine->addKeywordFile(keywordFilePath(source));
      }
      break;
    case Extraction::kFailed:
      showMessage(owner, "Impossible to extract keywords", kWarning,
                  kMessageOk | kMessageIconExclamation);
      break;
    case Extraction::kKept:
      break;
  }
}

}  // namespace kesto
