// SPDX-License-Identifier: Apache-2.0

#include "skin/smoothing.h"

#include "rowText.h"
#include "skin/paint.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

using namespace host::skin;

namespace
{

// Vertex 0 in the middle of a ring: joined to 1, 2, 3 and 4.
const Adjacency kCross = buildAdjacency(5, {{0, 1}, {0, 2}, {0, 3}, {4, 0}, {0, 1}});

// Vertices 0 - 1 - 2 - ... in a line.
Adjacency line(std::uint32_t count)
{
    std::vector<std::pair<std::uint32_t, std::uint32_t>> edges;
    for (std::uint32_t v = 1; v < count; ++v)
        edges.push_back({v - 1, v});
    return buildAdjacency(count, edges);
}

// A store whose rows are given dense, one text per vertex.
WeightStore storeOf(const std::vector<const char *> &rows)
{
    WeightStore store;
    for (std::size_t v = 0; v < rows.size(); ++v) {
        const textRow row(rows[v]);
        store.addRow(v);
        for (std::uint32_t i = 0; i < row.weights.size(); ++i)
            store.setWeight(v, i, row.weights[i]);
    }
    return store;
}

std::string rowAsText(const WeightStore &store, std::size_t vertex, std::size_t columns)
{
    std::vector<std::int32_t> columnOfInfluence(columns);
    std::iota(columnOfInfluence.begin(), columnOfInfluence.end(), 0);
    std::vector<double> weights(columns);
    store.readDense(vertex, vertex + 1, columnOfInfluence, columns, weights.data());
    return rowText(weights);
}

using vertexList = std::vector<std::uint32_t>;

} // namespace

TEST(smoothing, aPeakTakesItsNeighboursWeights)
{
    WeightStore store = storeOf({"1 0", "0 1", "0 1", "0 1", "0 1"});
    EXPECT_EQ(smoothWeights(store, kCross, {0}, {}, {0.5, 1}), vertexList{0});
    EXPECT_EQ(rowAsText(store, 0, 2), "0 1");
    EXPECT_TRUE(smoothWeights(store, kCross, {}, {}, {0.0, 5}).empty()) << "all is even";
}

TEST(smoothing, leavesVerticesWithinTheToleranceAlone)
{
    WeightStore store = storeOf({"0.5 0.5", "0.2 0.8", "0.2 0.8", "0.2 0.8", "0.2 0.8"});
    EXPECT_TRUE(smoothWeights(store, kCross, {}, {}, {0.31, 3}).empty());
    EXPECT_EQ(smoothWeights(store, kCross, {0}, {}, {0.29, 1}), vertexList{0});
}

// Vertices 2 and 3 are bad and have a good neighbour each; what they take is the round's start.
TEST(smoothing, usesGoodNeighboursAndTheStartOfTheRound)
{
    WeightStore store = storeOf({"1 0", "1 0", "0.2 0.8", "0.8 0.2", "0 1", "0 1"});
    EXPECT_EQ(smoothWeights(store, line(6), {}, {}, {0.6, 1}), (vertexList{2, 3}));
    EXPECT_EQ(rowAsText(store, 2, 2), "1 0");
    EXPECT_EQ(rowAsText(store, 3, 2), "0 1");
}

TEST(smoothing, toleranceZeroIsAPlainLaplacianPass)
{
    WeightStore store = storeOf({"1 0", "0 1", "1 0"});
    EXPECT_EQ(smoothWeights(store, line(3), {}, {}, {0.0, 1}), (vertexList{0, 1, 2}));
    EXPECT_EQ(rowAsText(store, 0, 2) + ", " + rowAsText(store, 1, 2), "0 1, 1 0");
}

TEST(smoothing, lockedInfluencesKeepTheirWeights)
{
    WeightStore store =
        storeOf({"0.3 0.7 0", "0.1 0.3 0.6", "0.1 0.3 0.6", "0 0.4 0.6", "0 0.4 0.6"});
    smoothWeights(store, kCross, {0}, {true}, {0.1, 1});
    EXPECT_EQ(rowAsText(store, 0, 3), "0.3 0.257895 0.442105");
}

TEST(smoothing, keepsWeightsWhereNeighboursOfferOnlyLockedInfluences)
{
    WeightStore store = storeOf({"0 1", "1 0", "1 0", "1 0", "1 0"});
    EXPECT_TRUE(smoothWeights(store, kCross, {0}, {true}, {0.5, 2}).empty());
    EXPECT_EQ(rowAsText(store, 0, 2), "0 1");
}

TEST(smoothing, obeysTheLimitOfInfluences)
{
    WeightStore store = storeOf({"1", "0 1", "0 0 1", "0 0 1", "0 0 0 1"});
    smoothWeights(store, kCross, {0}, {}, {0.5, 1, true, 2});
    EXPECT_EQ(rowAsText(store, 0, 4), "0 0.333333 0.666667 0") << "of equals the lower index stays";
}

// A mean over 160 influences: as many as no machine word has bits, many of them equal.
TEST(smoothing, findsTheLargestAmongManyInfluences)
{
    WeightStore store;
    store.setRow(0, {{0, 1.0}});
    std::vector<Entry> mean;
    for (std::uint32_t i = 0; i < 160; ++i) {
        mean.push_back({i * 1000, (i * 37 % 50 + 1) / 4.0});
        store.setWeight(1 + i % 4, i * 1000, (i * 37 % 50 + 1));
    }
    for (const unsigned limit : {1u, 2u, 7u, 70u, 159u, 160u}) {
        WeightStore smoothed = store;
        smoothWeights(smoothed, kCross, {0}, {}, {0.5, 1, true, limit, false});
        std::vector<Entry> largest = mean;
        std::stable_sort(largest.begin(), largest.end(),
                         [](const Entry &a, const Entry &b) { return a.weight > b.weight; });
        largest.resize(limit);
        WeightStore expected = store;
        expected.setRow(0, largest);
        EXPECT_EQ(smoothed, expected) << limit;
    }
}

TEST(smoothing, theLimitDoesNotCountNegativeWeights)
{
    WeightStore store = storeOf({"1", "0 -1 0.5", "0 -1 0.25", "0 -1 0.25 2", "0 -1 0 2"});
    smoothWeights(store, kCross, {0}, {}, {0.5, 1, true, 1, false});
    EXPECT_EQ(rowAsText(store, 0, 4), "0 -1 0 1");
}

TEST(smoothing, ignoresVerticesWithoutRowsAndNeighbours)
{
    WeightStore store;
    store.setRow(0, {{0, 1.0}});
    store.setRow(1, {{4000000000, 1.0}});
    store.setRow(5, {{0, 1.0}});
    EXPECT_EQ(smoothWeights(store, kCross, {0, 2, 5}, {}, {0.5, 1, false, 0, false}),
              vertexList{0});
    EXPECT_EQ(store.weight(0, 4000000000), 1.0);
    EXPECT_FALSE(store.hasRow(2));
}

TEST(paint, appliesEachOperation)
{
    const WeightStore store = storeOf({"1 0", "0 1", "0.2 0.8", "0.4 0.6", "0.6 0.4"});
    const auto painted = [&](const PaintSettings &settings) {
        return rowText(paintedWeights(store, kCross, {0, 4}, 0, settings));
    };
    EXPECT_EQ(painted({PaintOperation::smooth, 0.9, 0.5}), "0.65 0.8");
    EXPECT_EQ(painted({PaintOperation::replace, 0.2, 0.25}), "0.8 0.5");
    EXPECT_EQ(painted({PaintOperation::add, 0.2, 0.5}), "1.1 0.7");
    EXPECT_EQ(painted({PaintOperation::add, -1, 1, true, true, 0.05, 1}), "0.05 0.05");
    EXPECT_EQ(painted({PaintOperation::scale, 0.5, 0.5}), "0.75 0.45");
    const PaintSettings smooth = {PaintOperation::smooth};
    EXPECT_EQ(rowText(paintedWeights(store, line(1), {0}, 0, smooth)), "1") << "no neighbours";
}
