#include "addon/ide/help_file.h"

#include <cstring>

#include "addon/foundation/message_box.h"

namespace kesto {

HelpFile* helpFile = nullptr;

bool makeHelpPath(char* module_path) {
  const size_t length = strlen(module_path);
  if (length < 4 || module_path[length - 4] != '.') {
    return false;
  }
  memcpy(module_path + length - 3, "hlp", 4);
  return true;
}

HelpFile::HelpFile(HINSTANCE instance, HWND owner) : instance_(instance), owner_(owner) {
  path_[0] = '\0';
  // The terminator is not certain when the path fills the buffer.
  GetModuleFileNameA(instance_, path_, sizeof path_);
  path_[sizeof path_ - 1] = '\0';
  // Only the form of the path is tested, on purpose: a help file that does not
  // exist shows itself when a topic is asked for.
  if (!makeHelpPath(path_)) {
    showMessage(nullptr, "You can't use Kesto AddOn for Borland C++ 5.0\nwithout its helpfile !",
                "Fatal", kMessageIconHand);
    ExitProcess(0);
  }
  viewer_ = std::make_unique<HelpViewer>(owner_, path_);
}

HelpFile::~HelpFile() {
  if (opened_) {
    viewer_->quit(instance_);
  }
}

void HelpFile::showTopic(DWORD context) {
  opened_ = TRUE;
  viewer_->show(instance_, context);
}

bool showHelpOn(UINT message, HelpTopic topic) {
  if (message != WM_HELP || helpFile == nullptr) {
    return false;
  }
  helpFile->showTopic(topic);
  return true;
}

}  // namespace kesto
