// Keyword completion of the process: its settings with the list of keyword files, and what
// these complete. It is the completion source while there is a keyword file in the list.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include "addon/completion/completion.h"
#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"
#include "addon/ide/completion_source.h"

namespace kesto {

class CompletionEngine : public CompletionSource {
 public:
  // Reads section "Completion" and loads the files of its list.
  CompletionEngine();
  // Writes it back.
  ~CompletionEngine() override;
  CompletionEngine(const CompletionEngine&) = delete;
  CompletionEngine& operator=(const CompletionEngine&) = delete;

  CompletionStep strike(std::string_view word) override { return completion_.strike(word); }

  bool enabled() const { return enabled_ != 0; }
  unsigned keyCode() const { return static_cast<unsigned>(key_code_); }
  const Tableau<String>& keywordFiles() const { return keyword_files_; }
  // Appends a file to the list, unless it is there, and loads them all anew.
  void addKeywordFile(const char* path);

 private:
  void load();

  int enabled_;
  int key_code_;
  String key_text_;
  Tableau<String> keyword_files_;
  Completion completion_;
};

extern CompletionEngine* completionEngine;

// Makes a keyword file of a source file and adds it to the list. What stands in the way is
// told in a box, and so is a file that would be replaced, both over the owner.
void addExtractedKeywords(void* owner, const char* source);

}  // namespace kesto
