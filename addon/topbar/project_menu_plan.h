// The project's part of the bar's menus: a walk through its tree, depth first, that
// adds targets and files to a plan. Nodes whose names start with "#" are skipped with
// all below them. Plain code, and no recursion: trees come as deep as they like.
#pragma once

#include "addon/topbar/bar_menu_plan.h"

namespace kesto {

// Every container becomes a popup of the menu bar itself; those that stay empty are
// taken away again.
void planLinearMenus(const NodeTree& tree, int column_size, BarMenuPlan& plan);
// Containers nest as they do in the project; empty ones add nothing.
void planHierarchicalMenus(const NodeTree& tree, int column_size, BarMenuPlan& plan);

}  // namespace kesto
