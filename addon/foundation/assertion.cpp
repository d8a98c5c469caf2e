#include "addon/foundation/assertion.h"

#include <cstdio>

#include "addon/foundation/message_box.h"

namespace kesto {

bool checkThat(bool condition, const char* condition_text, const char* source, int line) {
  if (!condition) {
    char text[512];
    snprintf(text, sizeof text, "Assertion failed: %s, file %s, line %d", condition_text, source,
             line);
    showMessage(nullptr, text, "Erreur", kMessageIconHand);
  }
  return condition;
}

}  // namespace kesto
