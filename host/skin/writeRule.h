// SPDX-License-Identifier: Apache-2.0
//
// What happens to the other weights of a vertex when some of them are set: Maya's interactive
// normalisation, for one vertex at a time.
//
// A vertex is a dense line of weights, one per influence in PHYSICAL order. Assigned influences
// take the values given; locked (held) ones keep theirs; the free ones, neither assigned nor
// locked, share what is left to 1 in proportion to what they hold. That much is documented (Maya's
// command reference, skinPercent; "Normalize smooth skin weights"; "Lock smooth skin weights"). How
// values that cannot be met are clipped is inferred from the warning that Maya prints.
//
// Everything works in place, touches each weight a few times and allocates nothing except where
// said. A caller refuses NaN and infinite values before it writes (isWritable).

#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace host::skin
{

// Sums closer to their goal than this count as exact. Maya's own threshold, measured on a skin
// cluster with one joint: 0.9999999999 and 1.0000000000999998 pass quietly, the next doubles warn.
constexpr double kWeightEpsilon = 1e-10;

// Printed once per command or call, not once per vertex, when a WriteOutcome says so.
constexpr char kWeightTotalWarning[] = "Some weights could not be set to the specified value. The "
                                       "weight total would have exceeded 1.0.";
constexpr char kMaxInfluencesWarning[] =
    "Locked influences prevented enforcement of the max influences on some points.";

// A value for one influence.
struct Assignment {
    std::size_t influence; // physical index
    double value;
};

// Attribute normalizeWeights of the skin cluster. Post divides by the sum only while deforming:
// what is stored is what was set, as with none.
enum class NormalizeMode { none = 0, interactive = 1, post = 2 };

struct WriteSettings {
    NormalizeMode mode = NormalizeMode::interactive;
    bool normalize = true;              // the caller's flag; only interactive mode heeds it
    bool maintainMaxInfluences = false; // enforce the limit after the write
    unsigned maxInfluences = 0;         // of that limit; 0: no limit
};

// What the vertex could not be given. Combine the outcomes of a call with |=.
struct WriteOutcome {
    bool couldNotSet = false;       // print kWeightTotalWarning
    bool locksPreventedMax = false; // print kMaxInfluencesWarning

    WriteOutcome &operator|=(const WriteOutcome &other)
    {
        couldNotSet = couldNotSet || other.couldNotSet;
        locksPreventedMax = locksPreventedMax || other.locksPreventedMax;
        return *this;
    }
};

// Makes up shares for free influences that all hold 0: one per influence given, in that order, with
// sum 1 (see skin/distribution.h). An empty function, or an answer of another length, spreads
// evenly.
using CreateWeights =
    std::function<std::vector<double>(const std::vector<std::size_t> &freeInfluences)>;

// False for NaN and infinity.
bool isWritable(double value);

// Writes assignments into the `count` weights of a vertex.
//
// `locked` is indexed like the weights (missing entries: not locked); the lock of an assigned
// influence is ignored, as the caller asked for it by name. Without normalisation (mode, flag) the
// values are stored as given and nothing else moves. With it, in this order:
//  - each value is cut to what the held weights and the values before it leave of 1;
//  - the free weights are scaled to the rest; a negative one becomes 0;
//  - if all free ones are 0, `createWeights` distributes the rest (allocates);
//  - if nothing is free, the assigned ones are scaled to fill the room, with couldNotSet.
// A full set of values with sum 1 within kWeightEpsilon is stored bit by bit. If an influence is
// assigned twice, the later value counts.
//
// With maintainMaxInfluences the smallest free weights (of equals the higher index) then become 0
// until at most maxInfluences are above 0. Assigned and locked ones stay. If the free ones must all
// go, the assigned ones fill the room; if even that cannot help, the strongest free one stays and
// locked influences with a weight are reported as locksPreventedMax.
//
// REQUIRES: every assignment's influence < count, every value isWritable.
WriteOutcome writeWeights(double *weights, std::size_t count, const Assignment *assignments,
                          std::size_t assignmentCount, const std::vector<bool> &locked,
                          const WriteSettings &settings, const CreateWeights &createWeights);

// Normalises what is there (skinPercent -normalize on without values, skinCluster
// -forceNormalizeWeights): the unlocked weights are scaled so that the sum is 1. If no unlocked
// weight is above 0, or the locked ones exceed 1 alone, all are scaled, locked ones too. A row
// without weights gets them from `createWeights` over the unlocked influences. A sum within
// kWeightEpsilon of 1 stays bit by bit. False if the row stays without weights, because all its
// influences are locked. What Maya documents is the sum; which weights move is inferred.
bool normalizeRow(double *weights, std::size_t count, const std::vector<bool> &locked,
                  const CreateWeights &createWeights);

// skinPercent -pruneWeights: unlocked weights strictly below `threshold` become 0, then, with
// interactive mode and `normalize`, the unlocked ones left are scaled to sum 1 with the locked
// ones. If none would be left, the largest stays and gets that room, so that pruning never makes up
// weights on other influences. The limit of influences in `settings` is not looked at.
void pruneRow(double *weights, std::size_t count, double threshold, const std::vector<bool> &locked,
              const WriteSettings &settings);

// skinPercent -zeroRemainingInfluences: the assignments, followed by a 0 for each of the `count`
// influences that is neither assigned nor locked; to be written with writeWeights instead of the
// bare ones.
std::vector<Assignment> zeroRemaining(const Assignment *assignments, std::size_t assignmentCount,
                                      std::size_t count, const std::vector<bool> &locked);

} // namespace host::skin
