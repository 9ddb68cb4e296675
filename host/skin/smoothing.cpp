// SPDX-License-Identifier: Apache-2.0

#include "skin/smoothing.h"

#include "skin/rowMean.h"
#include "skin/writeRule.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace host::skin
{

namespace
{

// Differences that are rounding errors of a mean, not a jump.
constexpr double kRoundingNoise = 1e-14;

// The locks by logical influence, and what is done to a row under them.
class LockedRow
{
public:
    LockedRow(const std::vector<bool> &locked, const SmoothSettings &settings)
        : locked_(locked), settings_(settings)
    {
    }

    // The largest difference between two rows in an unlocked influence.
    double jump(const RowView &row, const RowView &mean) const;

    // The row with the mean in its unlocked influences, as the settings want it; false if the mean
    // offers nothing to put in their place. `result` is overwritten in both cases.
    bool replaceUnlocked(const RowView &row, const RowView &mean, std::vector<Entry> &result) const;

private:
    bool isLocked(const Entry &entry) const
    {
        return entry.influence < locked_.size() && locked_[entry.influence];
    }
    bool scaleUnlocked(std::vector<Entry> &row) const;
    void keepLargest(std::vector<Entry> &row) const;

    const std::vector<bool> &locked_;
    const SmoothSettings &settings_;
};

double LockedRow::jump(const RowView &row, const RowView &mean) const
{
    double largest = 0.0;
    forEachInfluence(row, mean, [&](const Entry &held, const Entry &average) {
        if (!isLocked(held))
            largest = std::max(largest, std::fabs(held.weight - average.weight));
    });
    return largest;
}

bool LockedRow::replaceUnlocked(const RowView &row, const RowView &mean,
                                std::vector<Entry> &result) const
{
    result.clear();
    forEachInfluence(row, mean, [&](const Entry &held, const Entry &average) {
        const Entry &taken = isLocked(held) ? held : average;
        if (taken.weight != 0.0)
            result.push_back(taken);
    });
    if (settings_.normalize && !scaleUnlocked(result))
        return false;
    if (settings_.obeyMax && settings_.maxInfluences > 0)
        keepLargest(result);
    return true;
}

// Scales the unlocked weights to what the locked ones leave of 1; negative ones become 0.
bool LockedRow::scaleUnlocked(std::vector<Entry> &row) const
{
    double room = 1.0;
    double above = 0.0;
    for (const Entry &entry : row) {
        if (isLocked(entry))
            room -= entry.weight;
        else
            above += std::max(0.0, entry.weight);
    }
    const double factor = room >= kWeightEpsilon ? room / above : 0.0;
    if (!std::isfinite(factor))
        return false;
    for (Entry &entry : row) {
        if (!isLocked(entry))
            entry.weight = std::max(0.0, entry.weight) * factor;
    }
    return true;
}

// Drops the smallest unlocked weights (of equals the higher index) until the row meets the limit or
// one unlocked weight is left, which has to hold the rest.
void LockedRow::keepLargest(std::vector<Entry> &row) const
{
    const auto isAboveZero = [](const Entry &entry) { return entry.weight > 0.0; };
    auto excess = std::count_if(row.begin(), row.end(), isAboveZero) -
                  static_cast<std::ptrdiff_t>(settings_.maxInfluences);
    if (excess <= 0)
        return;
    std::vector<Entry *> unlocked;
    for (Entry &entry : row) {
        if (isAboveZero(entry) && !isLocked(entry))
            unlocked.push_back(&entry);
    }
    std::sort(unlocked.begin(), unlocked.end(), [](const Entry *a, const Entry *b) {
        return a->weight != b->weight ? a->weight < b->weight : a->influence > b->influence;
    });
    excess = std::min(excess, static_cast<std::ptrdiff_t>(unlocked.size()) - 1);
    for (std::ptrdiff_t i = 0; i < excess; ++i)
        unlocked[static_cast<std::size_t>(i)]->weight = 0.0;
    if (settings_.normalize)
        scaleUnlocked(row);
}

// One command: the rounds, and what they share.
class Smoother
{
public:
    Smoother(WeightStore &weights, const Adjacency &adjacency, const std::vector<bool> &locked,
             const SmoothSettings &settings)
        : weights_(weights), adjacency_(adjacency), settings_(settings), row_(locked, settings),
          isBad_(adjacency.vertexCount(), false), isChanged_(adjacency.vertexCount(), false)
    {
    }

    // Runs one round; false if no vertex is bad.
    bool runRound(const std::vector<std::uint32_t> &vertices);

    std::vector<std::uint32_t> changedVertices() const;

private:
    std::vector<std::uint32_t> findBad(const std::vector<std::uint32_t> &vertices);
    bool hasGoodNeighbour(std::uint32_t vertex) const;
    void smooth(std::uint32_t vertex, const WeightStore &before, bool withBadNeighbours);

    WeightStore &weights_;
    const Adjacency &adjacency_;
    const SmoothSettings &settings_;
    LockedRow row_;
    RowMean mean_;
    std::vector<Entry> result_;
    std::vector<bool> isBad_;
    std::vector<bool> isChanged_;
};

std::vector<std::uint32_t> Smoother::findBad(const std::vector<std::uint32_t> &vertices)
{
    std::fill(isBad_.begin(), isBad_.end(), false);
    std::vector<std::uint32_t> bad;
    for (const std::uint32_t vertex : vertices) {
        mean_.clear();
        for (const std::uint32_t neighbour : adjacency_.of(vertex))
            mean_.add(weights_, neighbour);
        if (!weights_.hasRow(vertex) || mean_.rowCount() == 0)
            continue;
        const double jump = row_.jump(weights_.row(vertex), mean_.mean());
        if (jump >= settings_.tolerance && jump > kRoundingNoise) {
            bad.push_back(vertex);
            isBad_[vertex] = true;
        }
    }
    return bad;
}

bool Smoother::hasGoodNeighbour(std::uint32_t vertex) const
{
    const Adjacency::Range neighbours = adjacency_.of(vertex);
    return std::any_of(neighbours.begin(), neighbours.end(), [this](std::uint32_t neighbour) {
        return weights_.hasRow(neighbour) && !isBad_[neighbour];
    });
}

bool Smoother::runRound(const std::vector<std::uint32_t> &vertices)
{
    const std::vector<std::uint32_t> bad = findBad(vertices);
    const bool withBadNeighbours =
        bad.size() == vertices.size() ||
        std::none_of(bad.begin(), bad.end(),
                     [this](std::uint32_t vertex) { return hasGoodNeighbour(vertex); });
    const WeightStore before = weights_;
    for (const std::uint32_t vertex : bad)
        smooth(vertex, before, withBadNeighbours);
    return !bad.empty();
}

void Smoother::smooth(std::uint32_t vertex, const WeightStore &before, bool withBadNeighbours)
{
    mean_.clear();
    for (const std::uint32_t neighbour : adjacency_.of(vertex)) {
        if (withBadNeighbours || !isBad_[neighbour])
            mean_.add(before, neighbour);
    }
    if (mean_.rowCount() == 0 || !row_.replaceUnlocked(before.row(vertex), mean_.mean(), result_))
        return;
    weights_.setRow(vertex, result_);
    isChanged_[vertex] = true;
}

std::vector<std::uint32_t> Smoother::changedVertices() const
{
    std::vector<std::uint32_t> changed;
    for (std::size_t vertex = 0; vertex < isChanged_.size(); ++vertex) {
        if (isChanged_[vertex])
            changed.push_back(static_cast<std::uint32_t>(vertex));
    }
    return changed;
}

} // namespace

std::vector<std::uint32_t> smoothWeights(WeightStore &weights, const Adjacency &adjacency,
                                         const std::vector<std::uint32_t> &vertices,
                                         const std::vector<bool> &locked,
                                         const SmoothSettings &settings)
{
    std::vector<std::uint32_t> smoothed = vertices;
    if (smoothed.empty()) {
        smoothed.resize(adjacency.vertexCount());
        std::iota(smoothed.begin(), smoothed.end(), 0u);
    }
    const auto isOutside = [&](std::uint32_t vertex) {
        return vertex >= adjacency.vertexCount() || !weights.hasRow(vertex);
    };
    smoothed.erase(std::remove_if(smoothed.begin(), smoothed.end(), isOutside), smoothed.end());

    Smoother smoother(weights, adjacency, locked, settings);
    for (unsigned round = 0; round < settings.iterations; ++round) {
        if (!smoother.runRound(smoothed))
            break;
    }
    return smoother.changedVertices();
}

} // namespace host::skin
