// Whether the program runs under Wine, for the few places where Wine is not as Windows.
// Any thread.
#pragma once

namespace workbench {

bool isOnWine();

}  // namespace workbench
