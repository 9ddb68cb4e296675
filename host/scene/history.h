// SPDX-License-Identifier: Apache-2.0
// Following geometry along the graph: which node made the mesh that arrives here.
#pragma once

#include <vector>

#include "scene/node.h"

namespace host
{

// The plug that a shape is fed through (inMesh, create, latticeInput); a null plug for other nodes.
Plug shapeInput(const Node &shape);

// What one geometry output is made from: the plug of the same node through which geometry comes in
// (a deformer's input[k].inputGeometry for outputGeometry[k], a groupParts' inputGeometry, ...).
// Null where the way ends: at shapes and at nodes that make geometry.
Plug geometryInputFor(const Plug &output);

// The nodes that the geometry at `input` comes through, nearest first, up to and including the
// shape or the primitive that it starts from.
std::vector<NodePtr> geometryHistory(const Plug &input);

} // namespace host
