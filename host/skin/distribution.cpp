// SPDX-License-Identifier: Apache-2.0

#include "skin/distribution.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace host::skin
{

namespace
{

// Divides by the sum. False, and nothing done, if there is no proportion to keep.
bool scaleToOne(std::vector<double> &shares)
{
    const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
    if (!(sum > 0.0 && std::isfinite(sum)))
        return false;
    for (double &share : shares)
        share /= sum;
    return true;
}

} // namespace

std::vector<double> sharesByDistance(const Vec3 &vertex,
                                     const std::vector<BindInfluence> &influences,
                                     const std::vector<std::size_t> &freeInfluences)
{
    std::vector<InfluenceDistance> distances;
    distances.reserve(freeInfluences.size());
    for (const std::size_t i : freeInfluences)
        distances.push_back(
            {squaredDistanceToInfluence(vertex, influences[i]), influences[i].dropoff});
    std::vector<double> shares = rawWeights(distances);
    scaleToOne(shares);
    return shares;
}

std::vector<double> sharesByNeighbours(const WeightStore &weights, const Adjacency &adjacency,
                                       std::size_t vertexIndex,
                                       const std::vector<std::uint32_t> &logicalOfInfluence,
                                       const Vec3 &vertex,
                                       const std::vector<BindInfluence> &influences,
                                       const std::vector<std::size_t> &freeInfluences)
{
    // The mean's divisor cancels when the shares are scaled to 1.
    std::vector<double> shares(freeInfluences.size(), 0.0);
    for (const std::uint32_t neighbour : adjacency.of(vertexIndex)) {
        for (std::size_t i = 0; i < shares.size(); ++i) {
            const double weight = weights.weight(neighbour, logicalOfInfluence[freeInfluences[i]]);
            shares[i] += std::max(0.0, weight);
        }
    }
    return scaleToOne(shares) ? shares : sharesByDistance(vertex, influences, freeInfluences);
}

} // namespace host::skin
