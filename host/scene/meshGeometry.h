// SPDX-License-Identifier: Apache-2.0
// What a mesh looks like: its points and faces, wherever along its history they are stored.
//
// A deformed mesh stores none of its own; they come from the intermediate shape that feeds its
// deformers, or from a primitive (polyCube, ...) that the host can build, in that order. Where
// nothing stores them, a skinned mesh has as many vertices as its skin cluster's weight list says.
#pragma once

#include <memory>
#include <vector>

#include "scene/node.h"
#include "skin/smoothing.h"
#include "skin/vec3.h"

namespace host
{

struct MeshGeometry {
    std::vector<skin::Vec3> points;     // object space, undeformed; empty if stored nowhere
    std::vector<unsigned> faceSizes;    // vertices per face
    std::vector<unsigned> faceVertices; // vertex numbers, face after face
    unsigned edgeCount = 0;
    unsigned vertexCount = 0; // also right where points is empty
};

// The geometry that the mesh shows. REQUIRES: mesh.isA("mesh").
MeshGeometry meshGeometry(const Node &mesh);
// The mesh or primitive that the points and faces are stored in or made by; null if there is none.
NodePtr geometrySource(const Node &mesh);
// Only the counts, without decoding points and faces.
unsigned vertexCount(const Node &mesh);
// Vertices that share an edge, ascending per vertex.
skin::Adjacency meshAdjacency(const MeshGeometry &geometry);

// The deformer or shape upstream: skin clusters that deform `mesh`, nearest to the shape first.
std::vector<NodePtr> skinClustersOf(const Node &mesh);
// The shapes that a deformer ends in, each once, in the order of its outputs; the first of them, or
// null.
std::vector<NodePtr> deformedShapes(const Node &deformer);
NodePtr deformedShape(const Node &deformer);

} // namespace host
