// SPDX-License-Identifier: Apache-2.0
//
// Where weight goes when all free influences hold none (attribute weightDistribution of the skin
// cluster). Both functions answer as CreateWeights of skin/writeRule.h must: one share per free
// influence, in the order given, with sum 1. Influences are PHYSICAL indices.
//
//   writeWeights(..., [&](const auto &freeInfluences) {
//       return sharesByDistance(position, influences, freeInfluences);
//   });

#pragma once

#include "skin/adjacency.h"
#include "skin/bindLaw.h"
#include "skin/weightStore.h"

#include <cstddef>
#include <vector>

namespace host::skin
{

enum class WeightDistribution { distance = 0, neighbours = 1 };

// Distance: the nearer an influence, the larger its share, and every free one gets something
// (Maya's "Normalize smooth skin weights"). Maya does not publish the law; this is the one of
// binding, without a limit. Influences at distance 0 take all, in equal parts. REQUIRES: every free
// influence is an index of `influences`.
std::vector<double> sharesByDistance(const Vec3 &vertex,
                                     const std::vector<BindInfluence> &influences,
                                     const std::vector<std::size_t> &freeInfluences);

// Neighbours: the mean of what the edge-connected vertices hold, so that only influences in use
// nearby appear. Negative weights count as 0. Falls back to distance where the neighbours hold none
// of the free influences. logicalOfInfluence[physical index] is the influence's index in `weights`.
std::vector<double> sharesByNeighbours(const WeightStore &weights, const Adjacency &adjacency,
                                       std::size_t vertexIndex,
                                       const std::vector<std::uint32_t> &logicalOfInfluence,
                                       const Vec3 &vertex,
                                       const std::vector<BindInfluence> &influences,
                                       const std::vector<std::size_t> &freeInfluences);

} // namespace host::skin
