// The send list and the get list: how they are filled, and what their buttons do to the
// requests. Plain code; user-interface thread.
#pragma once

#include <vector>

#include "addon/foundation/tableau.h"
#include "addon/groupware/elt_gw.h"
#include "addon/groupware/group_tree.h"

namespace kesto {

using SendList = Tableau<EltGWsend>;
using GetList = Tableau<EltGWget>;

// Masks of the files that are exchanged where nothing else is set.
inline constexpr char kExchangedFiles[] = "*.cpp;*.cc;*.c;*.h;*.rh;*.rc;*.bmp;*.ico;*.gif";

// Each file of the project that may be written; of the server, each file. Sorted by full
// path in byte order, every path once. What the list held before is gone.
void fillSendList(SendList& list, GroupListing& files, const GroupRoots& roots,
                  std::string_view filters, WalkWatch* watch = nullptr);
void fillGetList(GetList& list, GroupListing& files, const GroupRoots& roots,
                 std::string_view filters, WalkWatch* watch = nullptr);

enum class SendButton { kClear, kUpdate, kSendAndUnlock };
enum class GetButton { kAsAdvised, kClear, kRefresh, kGetAndLock };

// What a button does, to the rows at these positions or, when there are none, to every
// row. That the same button does another thing to selected rows is meant so.
void pressButton(SendButton button, SendList& list, const std::vector<int>& selected);
void pressButton(GetButton button, GetList& list, const std::vector<int>& selected);

}  // namespace kesto
