// SPDX-License-Identifier: Apache-2.0
//
// Normalising, pruning and zeroing the rest: the operations of skin/writeRule.h on a whole row.

#include "skin/rowRoles.h"
#include "skin/writeRule.h"

#include <algorithm>
#include <cmath>

namespace host::skin
{

namespace
{

bool isNormalized(const RowRoles &row)
{
    return std::fabs(row.sumOfAll() - 1.0) < kWeightEpsilon;
}

} // namespace

bool normalizeRow(double *weights, std::size_t count, const std::vector<bool> &locked,
                  const CreateWeights &createWeights)
{
    RowRoles row(weights, count, locked);
    if (isNormalized(row))
        return true;
    const double room = 1.0 - row.sum(Role::locked);
    if (room >= kWeightEpsilon && row.scaleTo(room, Role::free))
        return true;
    if (room < kWeightEpsilon)
        row.setAll(Role::free, 0.0);
    return isNormalized(row) || row.scaleAllTo(1.0) || row.createFree(1.0, createWeights);
}

void pruneRow(double *weights, std::size_t count, double threshold, const std::vector<bool> &locked,
              const WriteSettings &settings)
{
    RowRoles row(weights, count, locked);
    std::size_t largest = count;
    double largestWeight = 0.0;
    for (std::size_t i = 0; i < count; ++i) {
        if (row.role(i) != Role::free)
            continue;
        if (weights[i] > largestWeight) {
            largest = i;
            largestWeight = weights[i];
        }
        if (weights[i] < threshold)
            weights[i] = 0.0;
    }
    if (settings.mode != NormalizeMode::interactive || !settings.normalize || isNormalized(row))
        return;
    const double room = 1.0 - row.sum(Role::locked);
    if (room < kWeightEpsilon)
        row.setAll(Role::free, 0.0);
    else if (!row.scaleTo(room, Role::free) && largest < count)
        weights[largest] = room;
}

std::vector<Assignment> zeroRemaining(const Assignment *assignments, std::size_t assignmentCount,
                                      std::size_t count, const std::vector<bool> &locked)
{
    std::vector<Assignment> all(assignments, assignments + assignmentCount);
    std::vector<bool> isKept(locked.begin(), locked.begin() + static_cast<std::ptrdiff_t>(
                                                                  std::min(count, locked.size())));
    isKept.resize(count, false);
    for (const Assignment &assignment : all)
        isKept[assignment.influence] = true;
    for (std::size_t i = 0; i < count; ++i) {
        if (!isKept[i])
            all.push_back({i, 0.0});
    }
    return all;
}

} // namespace host::skin
