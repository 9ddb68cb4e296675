// SPDX-License-Identifier: Apache-2.0
#include "scene/adjacencyCache.h"

#include <algorithm>

#include "scene/meshGeometry.h"

namespace host
{

const skin::Adjacency &AdjacencyCache::of(const Node &mesh)
{
    const NodePtr source = geometrySource(mesh);
    const unsigned long revision = source ? source->dataRevision() : 0;
    const unsigned count = vertexCount(mesh);
    for (const Entry &entry : entries_) {
        const bool isSame = entry.revision == revision && entry.vertexCount == count;
        if (isSame && source && entry.source.lock() == source)
            return entry.adjacency;
    }
    const auto isStale = [](const Entry &entry) {
        const NodePtr node = entry.source.lock();
        return !node || !node->isInScene() || node->dataRevision() != entry.revision;
    };
    entries_.erase(std::remove_if(entries_.begin(), entries_.end(), isStale), entries_.end());
    entries_.push_back({source, revision, count, meshAdjacency(meshGeometry(mesh))});
    return entries_.back().adjacency;
}

} // namespace host
