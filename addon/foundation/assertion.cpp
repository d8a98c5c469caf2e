#include "addon/foundation/assertion.h"

#include <string>

#include "addon/foundation/message_box.h"

namespace kesto {

bool checkThat(bool condition, const char* condition_text, const char* source, int line) {
  if (!condition) {
    const std::string text = std::string("Assertion failed: ") + condition_text + ", file " +
                             source + ", line " + std::to_string(line);
    showMessage(nullptr, text.c_str(), "Erreur", kMessageIconHand);
  }
  return condition;
}

}  // namespace kesto
