// SPDX-License-Identifier: Apache-2.0

#include "skin/smoothing.h"

#include "skin/rankedRows.h"
#include "skin/rowBesideMean.h"
#include "skin/unlockedWeights.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace host::skin
{

namespace
{

// Differences that are rounding errors of a mean, not a jump.
constexpr double kRoundingNoise = 1e-14;

// One command: the rounds, and what they share.
class Smoother
{
public:
    // `vertices` have rows, and so have those of `involved`: them and all their neighbours.
    Smoother(const WeightStore &weights, const Adjacency &adjacency,
             const std::vector<std::uint32_t> &vertices, std::vector<std::uint32_t> involved,
             const std::vector<bool> &locked, const SmoothSettings &settings)
        : adjacency_(adjacency), vertices_(vertices), tolerance_(settings.tolerance),
          rows_(weights, std::move(involved), adjacency.vertexCount()),
          unlocked_(rows_.influences(), locked, settings), mean_(rows_.influences().size()),
          averaged_(rows_.influences().size()), isBad_(adjacency.vertexCount(), 0),
          isChanged_(adjacency.vertexCount(), 0)
    {
    }

    // Runs one round; false if no vertex is bad.
    bool runRound();

    // Puts what has changed into the store and returns its vertices.
    std::vector<std::uint32_t> finish(WeightStore &weights) const;

private:
    enum class Neighbours { all, good };

    void findBad();
    void redoWithGoodNeighbours();
    bool hasNeighbour(std::uint32_t vertex, bool isBad) const;
    double average(std::uint32_t vertex, Neighbours neighbours);
    RankedRows::NewRow settle(std::uint32_t vertex);

    const Adjacency &adjacency_;
    const std::vector<std::uint32_t> &vertices_;
    const double tolerance_;
    RankedRows rows_; // as they were at the start of the round
    UnlockedWeights unlocked_;
    RowBesideMean mean_;
    WorkRow averaged_;
    std::vector<char> isBad_; // by vertex, as isChanged_
    std::vector<char> isChanged_;
    // What the bad vertices take, kept from when their jump was found: the means are the work.
    // Where the neighbours offer nothing, count is kNothing.
    std::vector<RankedRows::NewRow> newRows_;
    std::vector<Entry> newEntries_;

    static constexpr std::uint32_t kNothing = ~0u;
};

// Makes averaged_ the vertex's row with the neighbours' mean in its unlocked influences. Returns
// the largest difference in one of these; negative if no neighbour counts.
double Smoother::average(std::uint32_t vertex, Neighbours neighbours)
{
    averaged_.clear();
    for (const std::uint32_t neighbour : adjacency_.of(vertex)) {
        if (rows_.hasRow(neighbour) && (neighbours == Neighbours::all || !isBad_[neighbour]))
            mean_.add(rows_.row(neighbour));
    }
    if (mean_.rowCount() == 0)
        return -1.0;
    double jump = 0.0;
    mean_.take(rows_.row(vertex), [&](std::uint32_t rank, double held, double mean) {
        const double taken = unlocked_.isLocked(rank) ? held : mean;
        jump = std::max(jump, std::fabs(held - taken));
        averaged_.append({rank, taken}, taken != 0.0);
    });
    return jump;
}

// Settles averaged_ and appends it to newEntries_.
RankedRows::NewRow Smoother::settle(std::uint32_t vertex)
{
    const auto first = static_cast<std::uint32_t>(newEntries_.size());
    if (!unlocked_.settle(averaged_))
        return {vertex, first, kNothing};
    averaged_.keepIf([](const Entry &entry) { return entry.weight != 0.0; });
    newEntries_.insert(newEntries_.end(), averaged_.begin(), averaged_.end());
    return {vertex, first, static_cast<std::uint32_t>(newEntries_.size()) - first};
}

void Smoother::findBad()
{
    newRows_.clear();
    newEntries_.clear();
    for (const std::uint32_t vertex : vertices_) {
        const double jump = average(vertex, Neighbours::all);
        isBad_[vertex] = jump >= tolerance_ && jump > kRoundingNoise;
        if (isBad_[vertex])
            newRows_.push_back(settle(vertex));
    }
}

bool Smoother::hasNeighbour(std::uint32_t vertex, bool isBad) const
{
    const Adjacency::Range neighbours = adjacency_.of(vertex);
    return std::any_of(neighbours.begin(), neighbours.end(), [&](std::uint32_t neighbour) {
        return rows_.hasRow(neighbour) && bool(isBad_[neighbour]) == isBad;
    });
}

// What was averaged with bad neighbours is averaged again without them.
void Smoother::redoWithGoodNeighbours()
{
    for (RankedRows::NewRow &row : newRows_) {
        if (!hasNeighbour(row.vertex, true))
            continue;
        row.count = kNothing;
        if (average(row.vertex, Neighbours::good) >= 0.0)
            row = settle(row.vertex);
    }
}

bool Smoother::runRound()
{
    findBad();
    const bool areBad = !newRows_.empty();
    const bool hasGoodNeighbours =
        newRows_.size() < vertices_.size() &&
        std::any_of(newRows_.begin(), newRows_.end(), [this](const RankedRows::NewRow &row) {
            return hasNeighbour(row.vertex, false);
        });
    if (hasGoodNeighbours)
        redoWithGoodNeighbours();
    newRows_.erase(
        std::remove_if(newRows_.begin(), newRows_.end(),
                       [](const RankedRows::NewRow &row) { return row.count == kNothing; }),
        newRows_.end());
    for (const RankedRows::NewRow &row : newRows_)
        isChanged_[row.vertex] = 1;
    rows_.replace(newRows_, newEntries_);
    return areBad;
}

std::vector<std::uint32_t> Smoother::finish(WeightStore &weights) const
{
    std::vector<std::uint32_t> changed;
    for (const std::uint32_t vertex : vertices_) {
        if (isChanged_[vertex])
            changed.push_back(vertex);
    }
    rows_.copyTo(weights, changed);
    return changed;
}

// The vertices and their neighbours, those that have rows; ascending.
std::vector<std::uint32_t> withNeighbours(const std::vector<std::uint32_t> &vertices,
                                          const WeightStore &weights, const Adjacency &adjacency)
{
    std::vector<char> isInvolved(adjacency.vertexCount(), 0);
    for (const std::uint32_t vertex : vertices) {
        isInvolved[vertex] = 1;
        for (const std::uint32_t neighbour : adjacency.of(vertex))
            isInvolved[neighbour] = 1;
    }
    std::vector<std::uint32_t> involved;
    for (std::uint32_t vertex = 0; vertex < isInvolved.size(); ++vertex) {
        if (isInvolved[vertex] && weights.hasRow(vertex))
            involved.push_back(vertex);
    }
    return involved;
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

    Smoother smoother(weights, adjacency, smoothed, withNeighbours(smoothed, weights, adjacency),
                      locked, settings);
    for (unsigned round = 0; round < settings.iterations; ++round) {
        if (!smoother.runRound())
            break;
    }
    return smoother.finish(weights);
}

} // namespace host::skin
