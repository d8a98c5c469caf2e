// Replacing what is found.
#include <algorithm>

#include "workbench/editor/text_window.h"

namespace workbench {

bool TextWindow::replaceNext(const TextSearch& search, std::string_view with) {
  const Place from = std::min(anchor_, caret_);
  const Place to = std::max(anchor_, caret_);
  const Place end = {from.line, from.column + static_cast<int>(search.text.size())};
  Place found;
  if (to == end && document_.find(search, false, from, &found) && found == from) {
    if (!owner_.allowEdit()) {
      return true;
    }
    document_.beginTransaction();
    document_.erase(from, to);
    const Place after = document_.insert(from, with);
    document_.endTransaction();
    setCaret(after);
  }
  return findText(search, false);
}

int TextWindow::replaceAll(const TextSearch& search, std::string_view with, bool in_selection) {
  if (!owner_.allowEdit()) {
    return -1;
  }
  const Place from = in_selection ? std::min(anchor_, caret_) : Place{0, 0};
  Place to = in_selection ? std::max(anchor_, caret_) : document_.endPlace();
  holdPainting(true);
  const int count = document_.replaceAll(search, with, from, &to);
  if (in_selection) {
    select(from, to);
  }
  holdPainting(false);
  return count;
}

}  // namespace workbench
