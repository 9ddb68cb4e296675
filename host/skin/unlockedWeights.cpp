// SPDX-License-Identifier: Apache-2.0

#include "skin/unlockedWeights.h"

#include "skin/writeRule.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace host::skin
{

namespace
{

double middleOf(double a, double b, double c)
{
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
}

// The smallest weight that is left when `count` of the smallest go, and how many of those that are
// left equal it. Uses the weights up. Not std::nth_element: nothing here depends on how the
// comparison of two weights ends, which a processor can not foresee.
std::pair<double, std::size_t> smallestAbove(std::size_t count, std::vector<double> &weights)
{
    const auto keepIf = [&weights](auto stays) {
        std::size_t kept = 0;
        for (const double weight : weights) {
            weights[kept] = weight;
            kept += stays(weight);
        }
        weights.resize(kept);
    };
    for (;;) {
        const double pivot = middleOf(weights.front(), weights[weights.size() / 2], weights.back());
        std::size_t below = 0;
        std::size_t equal = 0;
        for (const double weight : weights) {
            below += weight < pivot;
            equal += weight == pivot;
        }
        if (count >= below && count < below + equal)
            return {pivot, below + equal - count};
        if (count < below) {
            keepIf([pivot](double weight) { return weight < pivot; });
        } else {
            count -= below + equal;
            keepIf([pivot](double weight) { return weight > pivot; });
        }
    }
}

} // namespace

// Scales the unlocked weights to what the locked ones leave of 1; negative ones become 0.
bool UnlockedWeights::scale(WorkRow &row) const
{
    double room = 1.0;
    double above = 0.0;
    for (const Entry &entry : row) {
        if (isLocked(entry.influence))
            room -= entry.weight;
        else
            above += std::max(0.0, entry.weight);
    }
    const double factor = room >= kWeightEpsilon ? room / above : 0.0;
    if (!std::isfinite(factor))
        return false;
    for (Entry &entry : row) {
        if (!isLocked(entry.influence))
            entry.weight = std::max(0.0, entry.weight) * factor;
    }
    return true;
}

// Drops the smallest unlocked weights (of equals the higher index) until the row meets the limit or
// one unlocked weight is left, which has to hold the rest.
void UnlockedWeights::keepLargest(WorkRow &row)
{
    std::ptrdiff_t excess = -static_cast<std::ptrdiff_t>(settings_.maxInfluences);
    droppable_.clear();
    for (const Entry &entry : row) {
        excess += entry.weight > 0.0;
        if (entry.weight > 0.0 && !isLocked(entry.influence))
            droppable_.push_back(entry.weight);
    }
    if (excess <= 0)
        return;
    excess = std::min(excess, static_cast<std::ptrdiff_t>(droppable_.size()) - 1);
    if (excess > 0)
        dropSmallest(row, static_cast<std::size_t>(excess));
    if (settings_.normalize)
        scale(row);
}

// REQUIRES: 0 < count < the number of weights in droppable_, which are the unlocked ones above 0.
void UnlockedWeights::dropSmallest(WorkRow &row, std::size_t count)
{
    const auto [smallestKept, equalCount] = smallestAbove(count, droppable_);
    std::size_t keptEquals = equalCount; // the first in the row
    row.keepIf([&, smallest = smallestKept](const Entry &entry) {
        const bool isEqual = entry.weight == smallest && !isLocked(entry.influence);
        const bool isKeptEqual = isEqual && keptEquals > 0;
        keptEquals -= isKeptEqual;
        const bool isSmaller = entry.weight > 0.0 && entry.weight < smallest;
        return isKeptEqual || !(isEqual || (isSmaller && !isLocked(entry.influence)));
    });
}

} // namespace host::skin
