// SPDX-License-Identifier: Apache-2.0
// Which vertices of a mesh share an edge, worked out once per mesh.
//
// Reading the faces of 100,000 vertices and sorting their edges takes longer than smoothing them
// once. A table is kept until anything that is stored in the node that holds or makes the faces
// changes (Node::dataRevision), or until that node goes.
#pragma once

#include <memory>
#include <vector>

#include "scene/node.h"
#include "skin/adjacency.h"

namespace host
{

class AdjacencyCache
{
public:
    // The table of a mesh; without neighbours where its faces are not known. Valid until the next
    // call. REQUIRES: mesh.isA("mesh").
    const skin::Adjacency &of(const Node &mesh);

private:
    struct Entry {
        std::weak_ptr<Node> source; // of the faces
        unsigned long revision;     // of the source
        unsigned vertexCount;       // of the mesh
        skin::Adjacency adjacency;
    };
    std::vector<Entry> entries_;
};

} // namespace host
