// SPDX-License-Identifier: Apache-2.0
//
// Which vertices of a mesh are joined by an edge, as one compressed table.
//
//   offsets      0     2     5  ...      vertexCount + 1 values
//   neighbours   1  4  0  2  5  ...      those of vertex v stand at [offsets[v], offsets[v + 1])

#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace host::skin
{

struct Adjacency {
    std::vector<std::uint32_t> offsets;
    std::vector<std::uint32_t> neighbours;

    std::size_t vertexCount() const { return offsets.empty() ? 0 : offsets.size() - 1; }

    // The neighbours of one vertex, for a range-for; none for a vertex that the table does not
    // know.
    struct Range {
        const std::uint32_t *first;
        const std::uint32_t *last;
        const std::uint32_t *begin() const { return first; }
        const std::uint32_t *end() const { return last; }
        bool empty() const { return first == last; }
    };
    Range of(std::size_t vertex) const
    {
        if (vertex >= vertexCount())
            return {nullptr, nullptr};
        return {neighbours.data() + offsets[vertex], neighbours.data() + offsets[vertex + 1]};
    }
};

// The table of a mesh from its edges, each given once or more often, in either direction. The
// neighbours of a vertex ascend and are distinct. Edges from a vertex to itself and edges that name
// a vertex >= vertexCount are left out.
Adjacency buildAdjacency(std::size_t vertexCount,
                         const std::vector<std::pair<std::uint32_t, std::uint32_t>> &edges);

} // namespace host::skin
