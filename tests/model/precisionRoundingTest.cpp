// SPDX-License-Identifier: Apache-2.0
#include "model/precisionRounding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

void expectCells(const weightRow &row, const weightRow &expected, const char *what)
{
    ASSERT_EQ(row.size(), expected.size()) << what;
    for (int entry = 0; entry < row.size(); ++entry) {
        EXPECT_DOUBLE_EQ(row.at(entry), expected.at(entry)) << what << ", entry " << entry;
        EXPECT_FALSE(row.at(entry) == 0.0 && std::signbit(row.at(entry))) << what << ": -0.0";
    }
}

} // namespace

TEST(weightRounder, cutsAtFortyNineHundredths)
{
    const struct {
        int places;
        double weight;
        double rounded;
    } cases[] = {
        {2, 0.125, 0.13},   {2, 0.124, 0.12}, {2, 0.12489, 0.12},       {2, 0.1251, 0.13},
        {3, 0.0005, 0.001}, {3, 0.0004, 0.0}, {1, 0.949, 0.9},          {1, 0.95, 1.0},
        {3, 1.0, 1.0},      {3, 0.0, 0.0},    {2, kInertCell, -2.0},    {2, kShapeRowTag, -1.0},
        {2, -0.3, -0.3},    {15, 0.1, 0.1},   {6, 0.1234567, 0.123457},
    };
    for (const auto &c : cases) {
        const double rounded = weightRounder(c.places).rounded(c.weight);
        EXPECT_DOUBLE_EQ(rounded, c.rounded) << c.weight << " at " << c.places;
        EXPECT_EQ(std::signbit(rounded), c.rounded < 0.0) << c.weight << " at " << c.places;
    }
}

TEST(giveResidual, completesTheOtherWeightsToOne)
{
    const struct {
        const char *what;
        int entry;
        weightRow row;
        weightRow expected;
    } cases[] = {
        {"first of three", 1, {0.0, 0.33, 0.33, 0.33}, {0.0, 0.34, 0.33, 0.33}},
        {"past markers", 3, {2.0, 0.6, -2.0, 0.3}, {2.0, 0.6, -2.0, 0.4}},
        {"the tag is no weight", 1, {1.0, 0.25, 0.5}, {1.0, 0.5, 0.5}},
        {"nothing is left", 1, {0.0, 0.1, 0.5, 0.5}, {0.0, 0.0, 0.5, 0.5}},
        {"noise is nothing",
         1,
         {0.0, 0.1, 0.1, 0.7, 0.2, 2.2e-16},
         {0.0, 0.0, 0.1, 0.7, 0.2, 2.2e-16}},
        {"more than 1 beside it", 2, {0.0, 1.25, 0.5}, {0.0, 1.25, -0.25}},
    };
    for (const auto &c : cases) {
        weightRow row = c.row;
        giveResidual(row, c.entry);
        expectCells(row, c.expected, c.what);
    }
}

TEST(wholeListRounding, givesTheResidualToTheLastWeightOfANormalizedRow)
{
    const struct {
        const char *what;
        int places;
        weightRow row;
        weightRow expected;
    } cases[] = {
        {"three thirds", 2, {0.0, 0.333333, 0.333333, 0.333334}, {0.0, 0.33, 0.33, 0.34}},
        {"last weight, not last cell",
         1,
         {0.0, 0.26, 0.26, 0.48, 0.0, -2.0},
         {0.0, 0.3, 0.3, 0.4, 0.0, -2.0}},
        {"equal weights", 2, {1.0, 0.335, 0.335, 0.33}, {1.0, 0.34, 0.34, 0.32}},
        {"last weight rounds away", 2, {0.0, 0.996, 0.004}, {0.0, 1.0, 0.0}},
        {"one weight", 3, {0.0, -2.0, 1.0}, {0.0, -2.0, 1.0}},
        {"off by one unit", 2, {0.0, 0.5, 0.49}, {0.0, 0.5, 0.5}},
        {"off by two units", 2, {0.0, 0.5, 0.48}, {0.0, 0.5, 0.48}},
        {"not normalized", 2, {0.0, 0.454, 0.496}, {0.0, 0.45, 0.5}},
        {"above 1", 2, {0.0, 0.8, 0.7}, {0.0, 0.8, 0.7}},
        {"shape row", 2, {-5.0, -1.0, -1.0}, {-5.0, -1.0, -1.0}},
    };
    for (const auto &c : cases) {
        weightRow row = c.row;
        wholeListRounding(c.places).apply(row);
        expectCells(row, c.expected, c.what);
    }
}

TEST(wholeListRounding, stopsResidualsAtARowWithoutWeight)
{
    wholeListRounding rounding(1);
    weightRow before = {0.0, 0.33, 0.67};
    weightRow weightless = {0.0, 0.0, -2.0};
    weightRow after = {0.0, 0.25, 0.25, 0.5};
    rounding.apply(before);
    EXPECT_FALSE(rounding.metRowWithoutWeight());
    rounding.apply(weightless);
    rounding.apply(after);

    EXPECT_TRUE(rounding.metRowWithoutWeight());
    expectCells(before, {0.0, 0.3, 0.7}, "before");
    expectCells(weightless, {0.0, 0.0, -2.0}, "without weight");
    expectCells(after, {0.0, 0.3, 0.3, 0.5}, "after");
}

TEST(wholeListRounding, passesOverARowWithoutColumns)
{
    wholeListRounding rounding(1);
    weightRow withoutColumns = {0.0};
    weightRow after = {0.0, 0.25, 0.25, 0.5};
    rounding.apply(withoutColumns);
    rounding.apply(after);
    EXPECT_TRUE(rounding.metRowWithoutColumns());
    EXPECT_FALSE(rounding.metRowWithoutWeight());
    expectCells(after, {0.0, 0.3, 0.3, 0.4}, "after");
}

TEST(roundEditedRow, givesTheResidualToTheFirstWeightThatMayTakeIt)
{
    const struct {
        const char *what;
        std::vector<int> barred; // columns
        weightRow row;
        weightRow expected;
        bool found;
    } cases[] = {
        {"edited first", {0}, {0.0, 0.5, 0.255, 0.245}, {0.0, 0.5, 0.25, 0.25}, true},
        {"edited second", {1}, {0.0, 0.504, 0.3, 0.196}, {0.0, 0.5, 0.3, 0.2}, true},
        {"past the locked", {0, 1}, {0.0, 0.5, 0.343, 0.333}, {0.0, 0.5, 0.34, 0.16}, true},
        {"past markers", {0}, {1.0, 0.5, -2.0, 0.0, 0.25}, {1.0, 0.5, -2.0, 0.0, 0.5}, true},
        {"nobody", {0, 1}, {0.0, 0.504, 0.496}, {0.0, 0.5, 0.5}, false},
        {"one weight", {0}, {0.0, 0.504, 0.0}, {0.0, 0.5, 0.0}, true},
        {"no weight", {}, {0.0, 0.0, -2.0}, {0.0, 0.0, -2.0}, true},
        {"rounded away", {0}, {0.0, 1.0, 0.001}, {0.0, 1.0, 0.0}, true},
        {"far too much", {0}, {0.0, 0.9, 0.5, 0.3}, {0.0, 0.9, -0.2, 0.3}, true},
        {"never a marker", {0}, {0.0, 1.0, 0.5, 1.0}, {0.0, 1.0, 0.0, 1.0}, true},
    };
    for (const auto &c : cases) {
        weightRow row = c.row;
        const auto mayTake = [&c](int column) {
            return std::find(c.barred.begin(), c.barred.end(), column) == c.barred.end();
        };
        EXPECT_EQ(roundEditedRow(row, weightRounder(2), mayTake), c.found) << c.what;
        expectCells(row, c.expected, c.what);
    }
}

TEST(roundEditedRow, givesTheResidualToTheFirstEqual)
{
    weightRow row = {0.0, 0.33, 0.33, 0.33};
    EXPECT_TRUE(roundEditedRow(row, weightRounder(2), [](int column) { return column == 1; }));
    expectCells(row, {0.0, 0.34, 0.33, 0.33}, "the first of the equal ones may not, and does");
}
