// SPDX-License-Identifier: Apache-2.0

#include "skin/writeRule.h"

#include "skin/rowRoles.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host::skin
{

namespace
{

// Stores the assigned values, each cut to what is left of `room`. Returns what they leave.
double assign(RowRoles &row, const Assignment *assignments, std::size_t assignmentCount,
              double room, WriteOutcome &outcome)
{
    double rest = room;
    for (std::size_t a = 0; a < assignmentCount; ++a) {
        const auto [influence, value] = assignments[a];
        if (row.role(influence) == Role::assigned)
            rest += row.weight(influence); // Assigned twice: the earlier value is taken back.
        const bool fits = value >= 0.0 && value < rest + kWeightEpsilon;
        const double stored = fits ? value : std::max(0.0, std::min(value, rest));
        if (std::fabs(stored - value) >= kWeightEpsilon)
            outcome.couldNotSet = true;
        row.weight(influence) = stored;
        row.role(influence) = Role::assigned;
        rest -= stored;
    }
    return rest;
}

// Lets the assigned weights fill the room, because no free influence can take the rest. Several
// that are all 0 stay so: there is no proportion to keep.
void fillRoom(RowRoles &row, const Assignment *assignments, std::size_t assignmentCount,
              double room, WriteOutcome &outcome)
{
    // Compared with the rounded bound: that is how Maya comes to accept 0.9999999999 quietly.
    if (assignmentCount == 0 || row.sum(Role::assigned) >= room - kWeightEpsilon)
        return;
    outcome.couldNotSet = true;
    const std::size_t first = assignments[0].influence;
    const bool isAlone = std::all_of(assignments, assignments + assignmentCount,
                                     [first](const Assignment &a) { return a.influence == first; });
    if (isAlone)
        row.weight(first) = room;
    else
        row.scaleTo(room, Role::assigned);
}

// How many free influences may stay above 0. At least one must, to hold the rest, unless leaving
// the rest to the assigned ones meets the limit.
std::size_t freeInfluencesAllowed(std::size_t assigned, std::size_t locked, std::size_t limit)
{
    if (assigned + locked < limit)
        return limit - assigned - locked;
    return assigned + locked == limit && assigned > 0 ? 0 : 1;
}

void dropSmallestFree(RowRoles &row)
{
    std::size_t smallest = row.count();
    for (std::size_t i = 0; i < row.count(); ++i) {
        if (row.role(i) == Role::free && row.weight(i) > 0.0 &&
            (smallest == row.count() || row.weight(i) <= row.weight(smallest)))
            smallest = i;
    }
    row.weight(smallest) = 0.0;
}

// Brings the row down to `limit` influences; true if all free ones had to go.
bool enforceLimit(RowRoles &row, std::size_t limit, double rest, WriteOutcome &outcome)
{
    const std::size_t assigned = row.countAboveZero(Role::assigned);
    const std::size_t locked = row.countAboveZero(Role::locked);
    std::size_t free = row.countAboveZero(Role::free);
    if (assigned + locked + free <= limit)
        return false;
    const std::size_t allowed = freeInfluencesAllowed(assigned, locked, limit);
    const bool dropsSome = free > allowed;
    for (; free > allowed; --free)
        dropSmallestFree(row);
    if (dropsSome && allowed > 0)
        row.scaleTo(rest, Role::free);
    if (assigned + locked + free > limit && locked > 0)
        outcome.locksPreventedMax = true;
    return dropsSome && allowed == 0;
}

// The rule itself, for interactive mode.
WriteOutcome writeNormalized(double *weights, std::size_t count, const Assignment *assignments,
                             std::size_t assignmentCount, const std::vector<bool> &locked,
                             const WriteSettings &settings, const CreateWeights &createWeights)
{
    WriteOutcome outcome;
    RowRoles row(weights, count, locked);
    for (std::size_t a = 0; a < assignmentCount; ++a)
        row.role(assignments[a].influence) = Role::announced;
    const double room = std::max(0.0, 1.0 - row.sum(Role::locked));
    const double rest = assign(row, assignments, assignmentCount, room, outcome);
    if (rest < kWeightEpsilon)
        row.setAll(Role::free, 0.0);
    else if (!row.scaleTo(rest, Role::free) && !row.createFree(rest, createWeights))
        fillRoom(row, assignments, assignmentCount, room, outcome);

    if (settings.maintainMaxInfluences && settings.maxInfluences > 0 &&
        enforceLimit(row, settings.maxInfluences, rest, outcome))
        fillRoom(row, assignments, assignmentCount, room, outcome);
    return outcome;
}

// The same for one assignment and no locks, on those weights alone that are not 0: a vertex has a
// handful of them among a hundred influences. False, and nothing done, where the others count too,
// because weights have to be made up, or where there are many.
bool writeAmongWeightsInUse(double *weights, std::size_t count, const Assignment &assignment,
                            const WriteSettings &settings, WriteOutcome &outcome)
{
    constexpr std::size_t kMost = 32;
    std::array<double, kMost> inUse;
    std::array<std::size_t, kMost> influences;
    std::size_t used = 0;
    Assignment assigned = assignment;
    bool mustCreate = true;
    for (std::size_t i = 0; i < count; ++i) {
        if (weights[i] == 0.0 && i != assignment.influence)
            continue;
        if (used == kMost)
            return false;
        if (i == assignment.influence)
            assigned.influence = used;
        else
            mustCreate = mustCreate && !(weights[i] > 0.0);
        influences[used] = i;
        inUse[used++] = weights[i];
    }
    if (mustCreate)
        return false;
    outcome = writeNormalized(inUse.data(), used, &assigned, 1, {}, settings,
                              [&mustCreate](const std::vector<std::size_t> &) {
                                  mustCreate = true;
                                  return std::vector<double>();
                              });
    for (std::size_t k = 0; k < used && !mustCreate; ++k)
        weights[influences[k]] = inUse[k];
    return !mustCreate;
}

} // namespace

bool isWritable(double value)
{
    return std::isfinite(value);
}

WriteOutcome writeWeights(double *weights, std::size_t count, const Assignment *assignments,
                          std::size_t assignmentCount, const std::vector<bool> &locked,
                          const WriteSettings &settings, const CreateWeights &createWeights)
{
    WriteOutcome outcome;
    if (settings.mode != NormalizeMode::interactive || !settings.normalize) {
        for (std::size_t a = 0; a < assignmentCount; ++a)
            weights[assignments[a].influence] = assignments[a].value;
        return outcome;
    }
    if (assignmentCount == 1 && locked.empty() &&
        writeAmongWeightsInUse(weights, count, assignments[0], settings, outcome))
        return outcome;
    return writeNormalized(weights, count, assignments, assignmentCount, locked, settings,
                           createWeights);
}

} // namespace host::skin
