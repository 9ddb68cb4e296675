// SPDX-License-Identifier: Apache-2.0
// What belongs to a set.
#pragma once

#include <vector>

#include "scene/selection.h"

namespace host
{

// Members in the order in which they are connected: whole objects (as the transform of a shape),
// components of shapes, and nodes outside the DAG. A deformer's set keeps its components in the
// groupParts node of the same group, any other in the shape. REQUIRES: set.isA("objectSet").
std::vector<SelectionItem> setMembers(const Node &set);

// The member that is connected from this plug: an object group of a shape, a DAG node's
// instObjGroups element, or a message. False for a group without components.
bool memberAt(const Plug &source, SelectionItem &member);

// Where the components of an object group are written: the componentList of the shape's own group
// or that of the groupParts node which works on the same group.
Plug componentListOf(const Plug &objectGroup);

} // namespace host
