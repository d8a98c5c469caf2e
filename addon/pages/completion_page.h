// Keyword completion: its key and the keyword files, in the order in which they are read.
// The list that is edited becomes the user's when the page is stored.
#pragma once

#include <string>
#include <vector>

#include "addon/pages/addon_page_base.h"
#include "addon/pages/key_field.h"

namespace kesto {

class CompletionPage : public AddonPageBase {
 public:
  explicit CompletionPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  void filled(HWND dialog) override;
  bool command(HWND dialog, int control, int notification) override;
  void stored(HWND dialog) override;

 private:
  void addFile(HWND dialog);
  void extractFile(HWND dialog);
  void removeFile(HWND dialog);
  // Once only in the list, and selected there.
  void list(HWND dialog, const std::string& path);
  void show(HWND dialog, int selected);

  KeyField key_;
  std::vector<std::string> files_;
};

}  // namespace kesto
