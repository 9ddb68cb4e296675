// SPDX-License-Identifier: Apache-2.0
#include "model/freshRounding.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

weightRow rounded(const weightRow &row, int places)
{
    weightRows rows = {row};
    roundAnew({row}, places, rows);
    return rows.at(0);
}

} // namespace

TEST(freshRounding, givesTheResidualToTheLastWeight)
{
    const struct {
        const char *what;
        int places;
        weightRow row;
        weightRow expected;
    } cases[] = {
        {"three thirds", 2, {0, 0.333333, 0.333333, 0.333334}, {0, 0.33, 0.33, 0.34}},
        {"the last of equal weights", 2, {0, 0.335, 0.335, 0.335}, {0, 0.34, 0.34, 0.32}},
        {"a tag like a weight", 2, {1, 0.25, 0.75, 0}, {1, 0.25, 0.75, 0}},
        {"past markers", 1, {0, 0.26, -2, 0.74, 0, -2}, {0, 0.3, -2, 0.7, 0, -2}},
        {"what rounds to nothing", 2, {0, 0.5, 0.498, 0.002}, {0, 0.5, 0.5, 0}},
        {"one weight", 2, {0, 0, 0.987, -2}, {0, 0, 1, -2}},
        {"far below 1", 2, {0, 0.2, 0.3}, {0, 0.2, 0.8}},
        {"above 1", 2, {0, 0.8, 0.7}, {0, 0.8, 0.2}},
        {"no room for the last", 2, {0, 1.25, 0.5}, {0, 1.25, -0.25}},
        {"shape row", 2, {-5, -1, -1}, {-5, -1, -1}},
    };
    for (const auto &c : cases) {
        const weightRow row = rounded(c.row, c.places);
        ASSERT_EQ(row.size(), c.expected.size()) << c.what;
        for (int entry = 0; entry < row.size(); ++entry) {
            EXPECT_DOUBLE_EQ(row.at(entry), c.expected.at(entry)) << c.what << ", " << entry;
            EXPECT_EQ(std::signbit(row.at(entry)), c.expected.at(entry) < 0) << c.what;
        }
    }
}

// The sum of a row at every number of places, and each weight within a unit of the last.
TEST(freshRounding, completesRowsToOneAtAnyNumberOfPlaces)
{
    const weightRow rows[] = {
        {0, 1.0 / 3, 1.0 / 3, 1.0 / 3},
        {0, 1.0 / 7, 2.0 / 7, 3.0 / 7, 1.0 / 7},
        {0, 0.1, 0.2, 0.3, 0.4},
        {0, 0.123456789012345, 0.876543210987655},
        {0, 0.05, 0.05, 0.05, 0.05, 0.8},
        {0, 1e-15, 1 - 1e-15},
        {0, 0.9999999999999999, 1.1102e-16},
        {0, std::sqrt(0.5), 1 - std::sqrt(0.5)},
    };
    for (const weightRow &row : rows) {
        for (int places = 1; places <= 15; ++places) {
            const weightRow result = rounded(row, places);
            double sum = 0.0;
            for (int entry = 1; entry < row.size(); ++entry) {
                const double weight = result.at(entry);
                sum += weight;
                EXPECT_GE(weight, 0.0) << row.at(1) << " at " << places;
                EXPECT_NEAR(weight, row.at(entry), 5.0 * std::pow(0.1, places))
                    << row.at(1) << " at " << places;
            }
            EXPECT_NEAR(sum, 1.0, 1e-15) << row.at(1) << " at " << places;
        }
    }
}

TEST(freshRounding, leavesWeightsAloneWhereDoublesHaveNoSuchPlaces)
{
    for (const int places : {17, 308, 400}) {
        const weightRow row = rounded({0, 0.25, 0.1, 0.65}, places);
        EXPECT_DOUBLE_EQ(row.at(1), 0.25) << places;
        EXPECT_DOUBLE_EQ(row.at(3), 0.65) << places;
    }
}

TEST(freshRounding, stopsResidualsAtARowWithoutWeight)
{
    const weightRows unrounded = {{-1, -1, -1}, {0, 0.33, 0.34}, {0, 0, -2}, {0, 0.33, 0.34}};
    weightRows rows = unrounded;
    const freshRounding met = roundAnew(unrounded, 1, rows);
    EXPECT_TRUE(met.metRowWithoutWeight);
    EXPECT_FALSE(met.metRowWithoutColumns);
    EXPECT_EQ(rows, (weightRows{{-1, -1, -1}, {0, 0.3, 0.7}, {0, 0, -2}, {0, 0.3, 0.3}}));
}

TEST(freshRounding, passesOverARowWithoutColumns)
{
    const weightRows unrounded = {{0}, {0, 0.33, 0.34}};
    weightRows rows = unrounded;
    const freshRounding met = roundAnew(unrounded, 1, rows);
    EXPECT_TRUE(met.metRowWithoutColumns);
    EXPECT_FALSE(met.metRowWithoutWeight);
    EXPECT_EQ(rows, (weightRows{{0}, {0, 0.3, 0.7}}));
}
