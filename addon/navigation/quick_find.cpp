#include "addon/navigation/quick_find.h"

namespace kesto {

QuickFind* quickFind = nullptr;

QuickFind::QuickFind(HWND owner) : owner_(owner) {
  settings.section.read();
}

QuickFind::~QuickFind() {
  settings.section.write();
}

}  // namespace kesto
