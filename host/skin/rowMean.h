// SPDX-License-Identifier: Apache-2.0
//
// Arithmetic on sparse rows, for what averages neighbouring vertices: walking two rows side by
// side, and the mean of several. All rows ascend by influence, so that everything is a merge: no
// table of influences, whose logical indices may be as large as a file likes.

#pragma once

#include "skin/weightStore.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace host::skin
{

// Calls visit(entry of a, entry of b) for each influence that one of the rows stores, ascending. A
// row that does not store it takes part with weight 0.
template <typename Visit>
void forEachInfluence(const RowView &a, const RowView &b, Visit visit)
{
    const Entry *left = a.begin();
    const Entry *right = b.begin();
    while (left != a.end() || right != b.end()) {
        if (right == b.end() || (left != a.end() && left->influence < right->influence)) {
            visit(*left, Entry{left->influence, 0.0});
            ++left;
        } else if (left == a.end() || right->influence < left->influence) {
            visit(Entry{right->influence, 0.0}, *right);
            ++right;
        } else {
            visit(*left++, *right++);
        }
    }
}

// The mean of the rows added since the last clear(). Keeps its memory: use one for many vertices.
class RowMean
{
public:
    void clear()
    {
        sum_.clear();
        rowCount_ = 0;
    }

    // Adds the row of a vertex; a vertex without a row, outside the deformer's set, does not count.
    void add(const WeightStore &weights, std::size_t vertex)
    {
        const RowView row = weights.row(vertex);
        if (row.empty() && !weights.hasRow(vertex))
            return;
        ++rowCount_;
        const Entry *rest = addKnown(row);
        if (rest == row.end())
            return;
        next_.clear();
        forEachInfluence(view(sum_), {rest, row.end()}, [this](const Entry &a, const Entry &b) {
            next_.push_back({a.influence, a.weight + b.weight});
        });
        std::swap(sum_, next_);
    }

    std::size_t rowCount() const { return rowCount_; }

    // REQUIRES: rowCount() > 0. Valid until the next call of any function.
    RowView mean()
    {
        next_ = sum_;
        for (Entry &entry : next_)
            entry.weight /= static_cast<double>(rowCount_);
        return view(next_);
    }

private:
    // Neighbours mostly have the same influences: adds in place up to the first one that the sum
    // does not hold yet, and returns where that stands.
    const Entry *addKnown(const RowView &row)
    {
        auto sum = sum_.begin();
        for (const Entry &entry : row) {
            while (sum != sum_.end() && sum->influence < entry.influence)
                ++sum;
            if (sum == sum_.end() || sum->influence != entry.influence)
                return &entry;
            sum->weight += entry.weight;
        }
        return row.end();
    }

    static RowView view(const std::vector<Entry> &row)
    {
        return {row.data(), row.data() + row.size()};
    }

    std::vector<Entry> sum_;
    std::vector<Entry> next_;
    std::size_t rowCount_ = 0;
};

} // namespace host::skin
