// One call of the delivery tool, from the selection of the files to the mail.
// User-interface thread only.
#pragma once

namespace kesto {

// The session, or its project, may have ended on return.
void runDelivery();

}  // namespace kesto
