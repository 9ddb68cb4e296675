// SPDX-License-Identifier: Apache-2.0
// Points and faces of polyCube, polyPlane, polyCylinder and polySphere, in Maya's vertex order.
#pragma once

#include "scene/meshGeometry.h"

namespace host
{

class Scene;

// The geometry that a node of one of these types makes from its attributes (width, height, depth,
// radius, subdivisionsX ...); an empty geometry for any other node.
MeshGeometry primitiveGeometry(const Node &primitive);

// How many vertices that geometry has, without building it.
unsigned primitiveVertexCount(const Node &primitive);

// Writes points, edges and faces into a mesh's own attributes (vrts, edge, face).
void storeGeometry(Scene &scene, const NodePtr &mesh, const MeshGeometry &geometry);

} // namespace host
