// SPDX-License-Identifier: Apache-2.0
//
// skinCluster -edit -smoothWeights: evens out sudden jumps of weight between a vertex and its
// neighbours. The reference describes tolerance and rounds; the algorithm below is ours and agrees
// with each sentence of it.
//
// One round, all from the weights at its start:
//   bad   = the vertices whose weight of some unlocked influence differs from the mean of the
//           edge-connected neighbours by the tolerance or more
//   a bad vertex takes, for the unlocked influences, the mean of its neighbours that are not bad,
//   scaled to sum 1 with the locked ones; one among bad neighbours only waits for a later round
//
// Each mean is worked out once, on copies of the rows that take part: the cost is that of the
// weights that are stored. The paint tool's smooth is in skin/paint.h.

#pragma once

#include "skin/adjacency.h"
#include "skin/weightStore.h"

#include <cstdint>
#include <vector>

namespace host::skin
{

struct SmoothSettings {
    double tolerance = 0.5;     // 0..1; 0 smooths everything that is not perfectly even
    unsigned iterations = 2;    // rounds at most (-smoothWeightsMaxIterations)
    bool obeyMax = false;       // keep at most maxInfluences per vertex (-obeyMaxInfluences)
    unsigned maxInfluences = 0; // of that limit; 0: no limit
    bool normalize = true;      // scale to sum 1; false leaves the plain means
};

// Smooths `vertices` (ascending, distinct; empty: all) and returns those that changed, ascending.
//
// `locked` is indexed by LOGICAL influence (missing entries: not locked); locked weights stay.
// Vertices without a row are neither smoothed nor averaged, those without neighbours stay as they
// are. If no bad vertex has a neighbour that is not bad, all neighbours count in that round: a
// tolerance of 0 makes it a plain Laplacian pass. Deliberate: where the neighbours hold nothing but
// locked influences, a vertex keeps its weights instead of getting new ones by distance, which
// would spread them to joints that nobody uses there (pinned by the test
// keepsWeightsWhereNeighboursOfferOnlyLockedInfluences).
std::vector<std::uint32_t> smoothWeights(WeightStore &weights, const Adjacency &adjacency,
                                         const std::vector<std::uint32_t> &vertices,
                                         const std::vector<bool> &locked,
                                         const SmoothSettings &settings);

} // namespace host::skin
