#include "addon/navigation/quick_resu.h"

#include "addon/foundation/binary_form.h"

namespace kesto {

int QuickResu::fWrite(FILE* file) const {
  return writeInt32(file, line_) && file_.fWrite(file) && text_.fWrite(file) ? 1 : 0;
}

int QuickResu::fRead(FILE* file) {
  return readInt32(file, &line_) && file_.fRead(file) && text_.fRead(file) ? 1 : 0;
}

}  // namespace kesto
