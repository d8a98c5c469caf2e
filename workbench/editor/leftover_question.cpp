#include "workbench/editor/leftover_question.h"

#include <utility>

namespace workbench {
namespace {

std::string questionAbout(const std::string& path, const std::string* now,
                          const std::string& leftover, std::size_t size) {
  std::string text = "A save of " + path + " was interrupted and left " + leftover + ", with " +
                     std::to_string(size) + " bytes. ";
  text += now == nullptr ? "The file itself is not there."
                         : "The file itself has " + std::to_string(now->size()) + ".";
  return text +
         "\n\nUse that text, as a change that is not saved yet?\nYes uses it, No deletes it, "
         "Cancel leaves it where it is.";
}

}  // namespace

bool askForLeftover(FileStore& store, const std::string& path, const std::string* now,
                    const BoxQuestion& ask, std::string* bytes, std::string* from) {
  for (const std::string& leftover : leftoversOf(store, path)) {
    std::string found;
    if (store.read(leftover, kLargestText, &found) != FileFault::kNone) {
      continue;
    }
    if (now != nullptr && found == *now) {
      // The save came as far as that.
      store.remove(leftover);
      continue;
    }
    const int answer =
        ask(questionAbout(path, now, leftover, found.size()), MB_YESNOCANCEL | MB_ICONWARNING);
    if (answer == IDYES) {
      *bytes = std::move(found);
      *from = leftover;
      return true;
    }
    if (answer == IDNO) {
      store.remove(leftover);
    }
  }
  return false;
}

}  // namespace workbench
