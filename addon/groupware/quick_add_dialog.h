// The dialog of quick add. User-interface thread only.
#pragma once

namespace kesto {

// Offers a new node for the project, next to this one, and tells the project client of it.
// When it returns, the project and the IDE may be gone.
void showQuickAdd(unsigned current);

}  // namespace kesto
