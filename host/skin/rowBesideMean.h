// SPDX-License-Identifier: Apache-2.0
//
// A vertex's row beside the mean of other rows. Influences are ranks (skin/rankedRows.h).

#pragma once

#include "skin/weightStore.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host::skin
{

// An array over all ranks, with a bit for each that is in use: adding a row is a store per weight,
// and reading all in order visits no others. Use one for many vertices.
class RowBesideMean
{
public:
    explicit RowBesideMean(std::size_t rankCount)
        : cells_(rankCount), used_((rankCount + kWordBits - 1) / kWordBits)
    {
    }

    void add(const RowView &row)
    {
        for (const Entry &entry : row)
            use(entry.influence).sum += entry.weight;
        ++rowCount_;
    }

    std::size_t rowCount() const { return rowCount_; }

    // Calls visit(rank, weight of `row`, mean of the rows added) for each influence that one of
    // them stores, ascending, and forgets the rows. REQUIRES: rowCount() > 0.
    template <typename Visit>
    void take(const RowView &row, Visit visit)
    {
        for (const Entry &entry : row)
            use(entry.influence).held = entry.weight;
        const double divisor = static_cast<double>(rowCount_);
        for (std::size_t word = 0; word < used_.size(); ++word) {
            for (std::uint64_t bits = used_[word]; bits != 0; bits &= bits - 1) {
                const std::size_t rank = word * kWordBits + lowestBit(bits);
                visit(static_cast<std::uint32_t>(rank), cells_[rank].held,
                      cells_[rank].sum / divisor);
                cells_[rank] = Cell();
            }
            used_[word] = 0;
        }
        rowCount_ = 0;
    }

private:
    static constexpr std::size_t kWordBits = 64;

    struct Cell {
        double sum = 0.0;
        double held = 0.0;
    };

    static std::size_t lowestBit(std::uint64_t bits)
    {
        return static_cast<std::size_t>(__builtin_ctzll(bits));
    }

    Cell &use(std::uint32_t rank)
    {
        used_[rank / kWordBits] |= std::uint64_t(1) << rank % kWordBits;
        return cells_[rank];
    }

    std::vector<Cell> cells_; // zero where not in use
    std::vector<std::uint64_t> used_;
    std::size_t rowCount_ = 0;
};

} // namespace host::skin
