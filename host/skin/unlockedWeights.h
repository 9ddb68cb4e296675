// SPDX-License-Identifier: Apache-2.0
//
// What smoothing does to a single row: its sum, and the limit of its influences. Influences are
// ranks (skin/rankedRows.h).

#pragma once

#include "skin/smoothing.h"
#include "skin/weightStore.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host::skin
{

// A row in the making. Which of its weights stay follows no pattern that a processor could foresee:
// each is written, and what must go is written over.
class WorkRow
{
public:
    explicit WorkRow(std::size_t most) : entries_(most) {}

    Entry *begin() { return entries_.data(); }
    Entry *end() { return entries_.data() + count_; }
    const Entry *begin() const { return entries_.data(); }
    const Entry *end() const { return entries_.data() + count_; }

    void clear() { count_ = 0; }

    // REQUIRES: room for it, even if it does not stay.
    void append(const Entry &entry, bool stays)
    {
        entries_[count_] = entry;
        count_ += stays;
    }

    template <typename Stays>
    void keepIf(Stays stays)
    {
        const Entry *last = end();
        clear();
        for (const Entry *entry = begin(); entry != last; ++entry) {
            const Entry copy = *entry;
            append(copy, stays(copy));
        }
    }

private:
    std::vector<Entry> entries_;
    std::size_t count_ = 0;
};

// The unlocked weights of one row, and what is done to them.
class UnlockedWeights
{
public:
    UnlockedWeights(const std::vector<std::uint32_t> &influences, const std::vector<bool> &locked,
                    const SmoothSettings &settings)
        : settings_(settings)
    {
        for (const std::uint32_t influence : influences)
            isLocked_.push_back(influence < locked.size() && locked[influence]);
    }

    bool isLocked(std::uint32_t rank) const { return isLocked_[rank] != 0; }

    // Makes a row of means what the settings want; false if they offer nothing.
    bool settle(WorkRow &row)
    {
        if (settings_.normalize && !scale(row))
            return false;
        if (settings_.obeyMax && settings_.maxInfluences > 0)
            keepLargest(row);
        return true;
    }

private:
    bool scale(WorkRow &row) const;
    void keepLargest(WorkRow &row);
    void dropSmallest(WorkRow &row, std::size_t count);

    const SmoothSettings &settings_;
    std::vector<char> isLocked_;
    std::vector<double> droppable_;
};

} // namespace host::skin
