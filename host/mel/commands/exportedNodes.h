// SPDX-License-Identifier: Apache-2.0
// What goes along when something is exported.
#pragma once

#include <unordered_set>
#include <vector>

#include "scene/selection.h"

namespace host::mel
{

// The selected nodes with all that they need: what is below them, the transforms above, what they
// are made from (history, joints, bind poses, animation), and what shades them. Of a set that was
// selected also its members. Default nodes are not among them: every scene has those.
std::unordered_set<const Node *> nodesToExport(const std::vector<SelectionItem> &selection);

} // namespace host::mel
