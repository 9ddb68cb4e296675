// SPDX-License-Identifier: Apache-2.0

#include "rowText.h"
#include "skin/distribution.h"
#include "skin/writeRule.h"

#include <gtest/gtest.h>

using namespace host::skin;

namespace
{

std::vector<double> evenly(const std::vector<std::size_t> &freeInfluences)
{
    return std::vector<double>(freeInfluences.size(), 1.0 / double(freeInfluences.size()));
}

} // namespace

TEST(rowOperations, normalizeMovesLockedWeightsOnlyWhenNothingElseCan)
{
    const std::vector<std::pair<const char *, const char *>> cases = {
        {"0.5 0.25 0.2", "0.526316 0.263158 0.210526"},
        {"0.5* 0.25 0.15", "0.5 0.3125 0.1875"},
        {"0.2* 0.3* 0", "0.4 0.6 0"},
        {"1.5* 0.5* 0.2", "0.75 0.25 0"},
        {"1* 0.2 0.1", "1 0 0"},
        {"0* 0 0", "0 0.5 0.5"},
        {"0* 0*", "0 0 failed"},
        {"0.6 -0.2 0.9", "0.4 0 0.6"},
    };
    for (const auto &[before, after] : cases) {
        textRow row(before);
        const bool done = normalizeRow(row.weights.data(), row.weights.size(), row.locked, evenly);
        EXPECT_EQ(rowText(row.weights) + (done ? "" : " failed"), after) << "from " << before;
    }
}

TEST(rowOperations, pruneDropsSmallWeightsButNeverMakesUpOthers)
{
    struct Case {
        const char *before;
        double threshold;
        const char *after;
        NormalizeMode mode = NormalizeMode::interactive;
    };
    const std::vector<Case> cases = {
        {"0.7 0.2 0.1", 0.2, "0.777778 0.222222 0"},
        {"0.7 0.2 0.1*", 0.2, "0.7 0.2 0.1"},
        {"0.7 0.2* 0.1", 0.2, "0.8 0.2 0"},
        {"0.3 0.4 0.3", 0.5, "0 1 0"},
        {"0.3* 0.4 0.3", 0.5, "0.3 0.7 0"},
        {"0.3 0.4 0.3", 100, "0 0 0", NormalizeMode::none},
        {"0 0 0", 0.1, "0 0 0"},
        {"0.4* 0 0", 0.1, "0.4 0 0"},
    };
    for (const Case &c : cases) {
        textRow row(c.before);
        pruneRow(row.weights.data(), row.weights.size(), c.threshold, row.locked, {c.mode});
        EXPECT_EQ(rowText(row.weights), c.after) << "from " << c.before;
    }
}

TEST(rowOperations, zeroRemainingSparesLockedInfluences)
{
    const Assignment given = {2, 0.7};
    textRow row("0.2 0.3* 0.1 0.4");
    const std::vector<Assignment> all = zeroRemaining(&given, 1, 4, row.locked);
    writeWeights(row.weights.data(), 4, all.data(), all.size(), row.locked, {}, evenly);
    EXPECT_EQ(rowText(row.weights), "0 0.3 0.7 0");
}

TEST(distribution, followsDistanceOrNeighbours)
{
    const std::vector<BindInfluence> joints = {{{1, 0, 0}, {}}, {{0, 1, 0}, {}}, {{0, 0, 2}, {}}};
    EXPECT_EQ(rowText(sharesByDistance({0, 0, 0}, joints, {0, 1, 2})),
              "0.484848 0.484848 0.030303");
    EXPECT_EQ(rowText(sharesByDistance({0, 0, 2}, joints, {2, 0})), "1 0");

    // Vertex 0 has the neighbours 1 and 2; the influences' logical indices are 4, 5 and 9.
    const Adjacency adjacency = buildAdjacency(4, {{0, 1}, {2, 0}, {2, 3}});
    WeightStore weights;
    weights.setRow(1, {{4, 0.5}, {5, 0.5}});
    weights.setRow(2, {{4, 0.9}, {5, 0.1}});
    weights.setRow(3, {{9, 1.0}});
    const auto shares = [&](const std::vector<std::size_t> &freeInfluences) {
        return rowText(sharesByNeighbours(weights, adjacency, 0, {4, 5, 9}, {0, 0, 0}, joints,
                                          freeInfluences));
    };
    EXPECT_EQ(shares({0, 1, 2}), "0.7 0.3 0");
    EXPECT_EQ(shares({1, 2}), "1 0");
    EXPECT_EQ(shares({2}), "1") << "nobody near has it: by distance";
}
