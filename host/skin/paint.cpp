// SPDX-License-Identifier: Apache-2.0

#include "skin/paint.h"

#include <algorithm>

namespace host::skin
{

namespace
{

// The mean weight of the neighbours that have a row; `otherwise` if there are none.
double neighbourMean(const WeightStore &weights, const Adjacency &adjacency, std::uint32_t vertex,
                     std::uint32_t influence, double otherwise)
{
    double sum = 0.0;
    std::size_t count = 0;
    for (const std::uint32_t neighbour : adjacency.of(vertex)) {
        if (!weights.hasRow(neighbour))
            continue;
        sum += weights.weight(neighbour, influence);
        ++count;
    }
    return count > 0 ? sum / static_cast<double>(count) : otherwise;
}

double unclamped(double weight, double target, const PaintSettings &settings)
{
    switch (settings.operation) {
    case PaintOperation::add:
        return weight + settings.opacity * target;
    case PaintOperation::scale:
        return weight * (1.0 + settings.opacity * (target - 1.0));
    case PaintOperation::replace:
    case PaintOperation::smooth:
        break;
    }
    return weight + settings.opacity * (target - weight);
}

} // namespace

double paintedWeight(double weight, double target, const PaintSettings &settings)
{
    double painted = unclamped(weight, target, settings);
    if (settings.clampLower)
        painted = std::max(painted, settings.minValue);
    if (settings.clampUpper)
        painted = std::min(painted, settings.maxValue);
    return painted;
}

std::vector<double> paintedWeights(const WeightStore &weights, const Adjacency &adjacency,
                                   const std::vector<std::uint32_t> &vertices,
                                   std::uint32_t influence, const PaintSettings &settings)
{
    std::vector<double> painted;
    painted.reserve(vertices.size());
    for (const std::uint32_t vertex : vertices) {
        const double weight = weights.weight(vertex, influence);
        const bool isSmooth = settings.operation == PaintOperation::smooth;
        const double target = isSmooth
                                  ? neighbourMean(weights, adjacency, vertex, influence, weight)
                                  : settings.value;
        painted.push_back(paintedWeight(weight, target, settings));
    }
    return painted;
}

} // namespace host::skin
