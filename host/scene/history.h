// SPDX-License-Identifier: Apache-2.0
// Following geometry along the graph: which node made the mesh that arrives here, and which shapes
// show what leaves there.
#pragma once

#include <vector>

#include "scene/node.h"

namespace host
{

// Nodes along one way of geometry, at most; a longer way is a loop.
constexpr std::size_t kMaxHistoryLength = 1000;

// Whether the node deforms geometry: its type derives from geometryFilter or, where the host does
// not know the type, its file has named input[].inputGeometry and outputGeometry[].
bool isDeformer(const Node &node);

// Node::findAttribute(), but the attributes that geometry goes through ("input", "inputGeometry",
// "inputPolymesh", "outputGeometry") are found by their long names also on a node of a type that
// the host does not know and whose file wrote the short ones.
AttributePtr geometryAttribute(const Node &node, std::string_view name);

// The plug that a shape is fed through (inMesh, create, latticeInput); a null plug for other nodes.
Plug shapeInput(const Node &shape);

// What one geometry output is made from: the plug of the same node through which geometry comes in
// (a deformer's input[k].inputGeometry for outputGeometry[k], a groupParts' inputGeometry, ...).
// Null where the way ends: at shapes and at nodes that make geometry.
Plug geometryInputFor(const Plug &output);

// The nodes that the geometry at `input` comes through, nearest first, up to and including the
// shape or the primitive that it starts from.
std::vector<NodePtr> geometryHistory(const Plug &input);

// The shapes that show what leaves at `output`, whatever deforms or models it on the way; each
// once, those with the fewest nodes between first. Empty if there is none.
std::vector<NodePtr> shapesFedBy(const Plug &output);

} // namespace host
