// All that is on the clipboard, kept to be put back: memory, pictures, palettes and
// metafiles. User-interface thread only.
#pragma once

#include <windows.h>

#include <vector>

#include "addon/ide/clipboard.h"

namespace kesto {

class SavedClipboard {
 public:
  SavedClipboard() = default;
  ~SavedClipboard();
  SavedClipboard(const SavedClipboard&) = delete;
  SavedClipboard& operator=(const SavedClipboard&) = delete;

  // Copies every format of the open clipboard; what was only promised is rendered for it.
  // False when one could not be copied that the system does not make from another:
  // formats that belong to their owner alone are none that can be.
  bool take();
  // Replaces everything on the clipboard, and keeps nothing.
  void putBack(Clipboard& clipboard);

 private:
  struct Entry {
    UINT format;
    HANDLE data;  // owned
  };

  bool madeFromAnother(UINT format) const;

  std::vector<Entry> entries_;  // in the order of the clipboard
};

}  // namespace kesto
