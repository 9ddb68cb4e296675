// SPDX-License-Identifier: Apache-2.0
// What of a world matrix the host does not know, because it does not run the node that makes it.
#pragma once

#include "scene/dagPath.h"

namespace host
{

// The node nearest to the path's end that moves it and is not evaluated: the source of a connection
// into a transform (a constraint, an animation curve, an expression), or a transform of a type that
// the host does not know. Null if worldMatrix(path) is as Maya would have it.
NodePtr unevaluatedMover(const DagPath &path);

} // namespace host
