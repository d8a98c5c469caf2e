// The module's help file: its own path with the extension "hlp". One object,
// created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include <memory>

#include "addon/ide/help_topics.h"
#include "addon/ide/help_viewer.h"

namespace kesto {

class HelpFile {
 public:
  // A module path without a three-letter extension ends the whole process,
  // after a box that says why.
  HelpFile(HINSTANCE instance, HWND owner);
  // Closes the help window when a topic was shown.
  ~HelpFile();
  HelpFile(const HelpFile&) = delete;
  HelpFile& operator=(const HelpFile&) = delete;

  // A number of HelpTopic. Returns at once: the viewer may have something to ask first.
  void showTopic(DWORD context);
  const char* path() const { return path_; }

 private:
  BOOL opened_ = FALSE;
  HINSTANCE instance_;
  HWND owner_;
  char path_[299];
  std::unique_ptr<HelpViewer> viewer_;
};

extern HelpFile* helpFile;

// For the procedure of a dialog: shows the topic when the message asks for help, as F1 does, and
// returns whether it did.
bool showHelpOn(UINT message, HelpTopic topic);

// Replaces the three letters after the final "." by "hlp". Returns false, and
// leaves the path alone, when it does not end in "." and three characters.
bool makeHelpPath(char* module_path);

}  // namespace kesto
