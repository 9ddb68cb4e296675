// SPDX-License-Identifier: Apache-2.0

#include "skin/adjacency.h"

#include <algorithm>

namespace host::skin
{

Adjacency buildAdjacency(std::size_t vertexCount,
                         const std::vector<std::pair<std::uint32_t, std::uint32_t>> &edges)
{
    std::vector<std::pair<std::uint32_t, std::uint32_t>> links; // from, to: both ways of each edge
    links.reserve(2 * edges.size());
    for (const auto &[a, b] : edges) {
        if (a == b || a >= vertexCount || b >= vertexCount)
            continue;
        links.emplace_back(a, b);
        links.emplace_back(b, a);
    }
    std::sort(links.begin(), links.end());
    links.erase(std::unique(links.begin(), links.end()), links.end());

    Adjacency adjacency;
    adjacency.offsets.assign(vertexCount + 1, 0);
    adjacency.neighbours.reserve(links.size());
    for (const auto &[from, to] : links) {
        adjacency.neighbours.push_back(to);
        ++adjacency.offsets[from + 1];
    }
    for (std::size_t vertex = 0; vertex < vertexCount; ++vertex)
        adjacency.offsets[vertex + 1] += adjacency.offsets[vertex];
    return adjacency;
}

} // namespace host::skin
