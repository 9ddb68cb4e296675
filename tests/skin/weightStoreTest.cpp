// SPDX-License-Identifier: Apache-2.0

#include "skin/weightStore.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <random>
#include <sstream>

using namespace host::skin;

namespace
{

// "0: 1=0.5 7=0.5 | 40: -" for rows 0 and 40, the second one without weights.
std::string picture(const WeightStore &store)
{
    std::ostringstream text;
    for (std::size_t v = store.nextRow(0); v < store.vertexCount(); v = store.nextRow(v + 1)) {
        text << (text.tellp() > 0 ? " | " : "") << v << ':';
        for (const Entry &entry : store.row(v))
            text << ' ' << entry.influence << '=' << entry.weight;
        text << (store.row(v).empty() ? " -" : "");
    }
    return text.str();
}

} // namespace

TEST(weightStore, mergesVerticesThatAFileSplits)
{
    WeightStore store;
    store.mergeRow(3, {{2, 0.25}, {9, 0.5}});
    store.mergeRow(3, {{5, 0.125}, {9, 0.0}, {2, 0.75}});
    store.mergeRow(4, {{7, 0.5}, {1, 0.25}, {7, 0.75}});
    EXPECT_EQ(picture(store), "3: 2=0.75 5=0.125 | 4: 1=0.25 7=0.75");
    store.setRow(4, {{1, 0.0}, {3, -1e-300}, {4, -0.0}});
    EXPECT_EQ(picture(store), "3: 2=0.75 5=0.125 | 4: 3=-1e-300");
}

TEST(weightStore, keepsGapsAndEmptyRowsApart)
{
    WeightStore store;
    store.setWeight(7, 1, 0.0);
    EXPECT_EQ(store.vertexCount(), 0u) << "a zero makes no row";
    store.setRow(70, std::vector<Entry>());
    store.setWeight(7, 1, 0.5);
    store.setWeight(7, 1, 0.0);
    store.setWeight(4000000000, 1, 1.0);
    EXPECT_EQ(picture(store), "7: - | 70: - | 4000000000: 1=1");
    EXPECT_EQ(store.rowCount(), 3u);
    store.resize(70);
    EXPECT_EQ(store.vertexCount(), 8u);
    store.resize(10);
    EXPECT_EQ(picture(store), "7: - | 8: - | 9: -");
    EXPECT_FALSE(store.hasRow(6));
    store.removeRow(9);
    store.removeRow(8);
    EXPECT_EQ(store.vertexCount(), 8u);
}

TEST(weightStore, comparesBitsAndExistence)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    WeightStore a;
    a.setRow(1, {{0, nan}, {1, 0.1}});
    WeightStore b = a;
    EXPECT_TRUE(a == b);
    b.setWeight(1, 1, std::nextafter(0.1, 1.0));
    EXPECT_TRUE(a != b);
    EXPECT_EQ(a.weight(1, 1), 0.1) << "a copy is on its own";
    b.setRow(1, {{0, nan}, {1, 0.1}});
    EXPECT_TRUE(a == b) << "however it came about";
    b.addRow(0);
    EXPECT_TRUE(a != b);
    a.setRow(0, {{0, nan}});
    a.setRow(1, {{1, 0.1}});
    EXPECT_TRUE(a != b) << "the same entries in other rows";
}

TEST(weightStore, readsDenseTables)
{
    WeightStore store;
    store.setRow(0, {{1, 0.5}, {4, 0.25}, {90, 0.25}});
    store.setRow(2, {{4, 1.0}});
    const std::vector<std::int32_t> columnOfInfluence = {2, -1, 1, 2, 0};
    std::vector<double> table(9, -1);
    store.readDense({2, 5, 0}, columnOfInfluence, 3, table.data());
    EXPECT_EQ(table, (std::vector<double>{1, 0, 0, 0, 0, 0, 0.25, 0, 0}));
    store.readDense(0, 3, columnOfInfluence, 3, table.data());
    EXPECT_EQ(table, (std::vector<double>{0.25, 0, 0, 0, 0, 0, 1, 0, 0}));
}

TEST(weightStore, agreesWithAMapOfMapsAfterRandomChanges)
{
    std::mt19937 random(7);
    WeightStore store, snapshot;
    std::map<std::size_t, std::map<std::uint32_t, double>> twin, twinSnapshot;
    const auto toText = [](const auto &rows) {
        WeightStore fresh;
        for (const auto &[vertex, weights] : rows) {
            fresh.addRow(vertex);
            for (const auto &[influence, weight] : weights)
                fresh.setWeight(vertex, influence, weight);
        }
        return picture(fresh);
    };
    for (int step = 0; step < 4000; ++step) {
        const std::size_t vertex = random() % 150;
        const std::uint32_t influence = random() % 12;
        const double weight = double(random() % 4) / 4;
        switch (random() % 12) {
        case 0:
            store.removeRow(vertex);
            twin.erase(vertex);
            break;
        case 1:
            store.setRow(vertex, {{influence, 0.5}, {influence + 1, 0.25}});
            twin[vertex] = {{influence, 0.5}, {influence + 1, 0.25}};
            break;
        case 2:
            store.removeInfluence(influence);
            for (auto &row : twin)
                row.second.erase(influence);
            break;
        case 3:
            snapshot = store;
            twinSnapshot = twin;
            break;
        default:
            store.setWeight(vertex, influence, weight);
            if (weight != 0)
                twin[vertex][influence] = weight;
            else if (twin.count(vertex))
                twin[vertex].erase(influence);
        }
        if (step % 50 == 0) {
            ASSERT_EQ(picture(store), toText(twin)) << "step " << step;
            ASSERT_EQ(picture(snapshot), toText(twinSnapshot)) << "step " << step;
        }
    }
}
