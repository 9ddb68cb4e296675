// SPDX-License-Identifier: Apache-2.0
// Nodes of unknown types that turn out to stand in the DAG.
//
// A file names a node's type and values long before it shows that the node has children. What was
// learned about it by then (".t", ".v") is written, as for a save, and has to be read again once
// the node has the attributes of a transform.
#pragma once

#include <string>

#include "scene/scene.h"

namespace host::ma
{

// Makes a transform of a node of an unknown type that a file names as a parent, and gives back the
// statements to be run about it. Nothing happens to nodes of known types and to default nodes.
std::string makeParent(Scene &scene, const NodePtr &node);

// Whether more is known about the node's type than when the node was made.
bool hasOldType(const Scene &scene, const Node &node);
// Gives such a node its type, and gives back the statements to be run about it.
std::string adoptType(Scene &scene, const NodePtr &node);

} // namespace host::ma
