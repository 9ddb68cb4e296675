// SPDX-License-Identifier: Apache-2.0
//
// Some rows of a WeightStore, copied out to be computed with again and again: all behind each
// other, and with ranks in place of logical influences.
//
//   logical influences in use   3  7  4000000000
//   their ranks                 0  1  2
//
// Ranks ascend as the influences do, and have no gaps: what is kept per influence can be an array.

#pragma once

#include "skin/weightStore.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host::skin
{

class RankedRows
{
public:
    // A row to put in: `count` entries of a list that comes along, from `first` on.
    struct NewRow {
        std::uint32_t vertex;
        std::uint32_t first;
        std::uint32_t count;
    };

    // Copies the rows of `vertices`: ascending, distinct, below vertexCount, each with a row.
    RankedRows(const WeightStore &weights, std::vector<std::uint32_t> vertices,
               std::size_t vertexCount);

    // By rank: the logical influence.
    const std::vector<std::uint32_t> &influences() const { return influences_; }

    // REQUIRES, for these two: vertex < vertexCount; row() of one that hasRow().
    bool hasRow(std::uint32_t vertex) const { return spans_[vertex].first != kNoRow; }
    RowView row(std::uint32_t vertex) const
    {
        const Entry *first = entries_.data() + spans_[vertex].first;
        return {first, first + spans_[vertex].count};
    }

    // Puts new rows in the place of some, and takes the list of their entries over: it has any
    // content afterwards. REQUIRES: ascending vertices that have rows.
    void replace(const std::vector<NewRow> &rows, std::vector<Entry> &entries);

    // Puts the rows of `vertices` into a store, with logical influences.
    void copyTo(WeightStore &weights, const std::vector<std::uint32_t> &vertices) const;

private:
    static constexpr std::uint32_t kNoRow = ~0u;

    struct Span {
        std::uint32_t first = kNoRow;
        std::uint32_t count = 0;
    };

    std::vector<std::uint32_t> vertices_; // with a row here
    std::vector<Span> spans_;             // by vertex
    std::vector<Entry> entries_;
    std::vector<std::uint32_t> influences_;
};

} // namespace host::skin
