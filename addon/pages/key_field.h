// A button of a page that shows a key and, clicked, asks for another. It keeps what was
// chosen until the page is stored. User-interface thread.
#pragma once

#include "addon/foundation/setting.h"
#include "addon/pages/key_capture.h"
#include "addon/pages/page_exchange.h"

namespace kesto {

class KeyField {
 public:
  // For the page's exchange(), with the settings of the key's code and of its name.
  void exchange(PageExchange& controls, int control, const char* help, IntegerSetting& code,
                TextSetting& text);
  // True when another key was chosen. Dialog and page may be gone on return; the page is not
  // freed while the IDE is in one of its calls.
  bool choose(HWND dialog, int control);

 private:
  NamedKey key_;
};

}  // namespace kesto
