// SPDX-License-Identifier: Apache-2.0

#include "skin/bindLaw.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>

namespace host::skin
{

namespace
{

double squaredDistanceToSegment(const Vec3 &point, const Vec3 &start, const Vec3 &end)
{
    const Vec3 along = end - start;
    const Vec3 offset = point - start;
    const double squaredLength = dot(along, along);
    if (!(squaredLength > 0.0))
        return dot(offset, offset);
    const double t = std::min(1.0, std::max(0.0, dot(offset, along) / squaredLength));
    const Vec3 toNearest = {offset.x - t * along.x, offset.y - t * along.y, offset.z - t * along.z};
    return dot(toNearest, toNearest);
}

double power(const InfluenceDistance &distance)
{
    // Most influences have the default dropoff, and a power is dear: one per vertex and influence.
    if (distance.dropoff == 4.0)
        return 1.0 / (distance.squared * distance.squared);
    return std::pow(distance.squared, -0.5 * distance.dropoff);
}

// The powers divided by the largest of them, for distances whose powers no double can hold.
std::vector<double> rescaledPowers(const std::vector<InfluenceDistance> &distances)
{
    std::vector<double> exponents(distances.size());
    double largest = -std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < distances.size(); ++i) {
        exponents[i] = -0.5 * distances[i].dropoff * std::log(distances[i].squared);
        if (std::isfinite(exponents[i]))
            largest = std::max(largest, exponents[i]);
    }
    if (!std::isfinite(largest))
        return std::vector<double>(distances.size(), 1.0);
    for (double &exponent : exponents)
        exponent = std::isfinite(exponent) ? std::exp(exponent - largest) : 0.0;
    return exponents;
}

// Sets all but the largest weights to 0; of equal ones the lower index stays.
void keepLargest(std::vector<double> &weights, std::size_t count)
{
    std::vector<std::size_t> order(weights.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    const auto firstDropped = order.begin() + static_cast<std::ptrdiff_t>(count);
    std::nth_element(order.begin(), firstDropped, order.end(),
                     [&weights](std::size_t a, std::size_t b) {
                         return weights[a] != weights[b] ? weights[a] > weights[b] : a < b;
                     });
    std::for_each(firstDropped, order.end(), [&weights](std::size_t i) { weights[i] = 0.0; });
}

} // namespace

double squaredDistanceToInfluence(const Vec3 &vertex, const BindInfluence &influence)
{
    if (influence.childJoints.empty()) {
        const Vec3 offset = vertex - influence.position;
        return dot(offset, offset);
    }
    double nearest = std::numeric_limits<double>::infinity();
    for (const Vec3 &child : influence.childJoints)
        nearest = std::min(nearest, squaredDistanceToSegment(vertex, influence.position, child));
    return nearest;
}

double distanceToInfluence(const Vec3 &vertex, const BindInfluence &influence)
{
    return std::sqrt(squaredDistanceToInfluence(vertex, influence));
}

std::vector<double> rawWeights(const std::vector<InfluenceDistance> &distances)
{
    std::vector<double> raw(distances.size());
    double sum = 0.0;
    for (std::size_t i = 0; i < distances.size(); ++i)
        sum += raw[i] = power(distances[i]);
    const auto isAtVertex = [](const InfluenceDistance &distance) {
        return distance.squared == 0.0;
    };
    if (std::any_of(distances.begin(), distances.end(), isAtVertex))
        std::transform(distances.begin(), distances.end(), raw.begin(), isAtVertex);
    else if (!(sum > 0.0 && std::isfinite(sum)))
        raw = rescaledPowers(distances);
    return raw;
}

std::vector<double> closestDistanceWeights(const Vec3 &vertex,
                                           const std::vector<BindInfluence> &influences,
                                           unsigned maxInfluences)
{
    std::vector<InfluenceDistance> distances;
    distances.reserve(influences.size());
    for (const BindInfluence &influence : influences) {
        distances.push_back({squaredDistanceToInfluence(vertex, influence), influence.dropoff});
        if (distances.back().squared == 0.0) {
            std::vector<double> weights(influences.size(), 0.0);
            weights[distances.size() - 1] = 1.0;
            return weights;
        }
    }
    std::vector<double> weights = rawWeights(distances);
    if (maxInfluences > 0 && maxInfluences < weights.size())
        keepLargest(weights, maxInfluences);
    const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    for (double &weight : weights)
        weight /= sum;
    return weights;
}

} // namespace host::skin
