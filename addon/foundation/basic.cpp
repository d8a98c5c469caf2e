#include "addon/foundation/basic.h"

#include "addon/foundation/message_box.h"

namespace kesto {

namespace {

void reportPure(const char* text) {
  showMessage(nullptr, text, "Erreur", kMessageIconHand);
}

}  // namespace

int Basic::fWrite(FILE* /*file*/) const {
  reportPure("Appel de Basic::fWrite virtuelle pure !");
  return 0;
}

int Basic::fRead(FILE* /*file*/) {
  reportPure("Appel de Basic::fRead virtuelle pure !");
  return 0;
}

Basic::operator char*() const {
  reportPure("Appel de Basic::char * virtuelle pure !");
  return nullptr;
}

Basic::operator long int() const {
  reportPure("Appel de Basic::long int virtuelle pure !");
  return 0;
}

}  // namespace kesto
