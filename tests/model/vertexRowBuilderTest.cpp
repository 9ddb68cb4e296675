// SPDX-License-Identifier: Apache-2.0
#include "model/vertexRowBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(vertexRowBuilder, laysInfluencesOutInTheirColumns)
{
    const vertexRowBuilder builder(3, 5, {4, 0, 2});
    const double weights[] = {0.25, 0.0, 0.5};
    double sum = 0.0;
    EXPECT_EQ(builder.build(weights, &sum), (weightRow{3.0, 0.0, -2.0, 0.5, -2.0, 0.25}));
    EXPECT_EQ(sum, 0.75);
}

TEST(vertexRowBuilder, leavesNothingOfTheRowBefore)
{
    const vertexRowBuilder builder(0, 2, {0, 1});
    const double first[] = {0.25, 0.75};
    const double second[] = {0.0, -0.0};
    double sum = 0.0;
    builder.build(first, &sum);
    const weightRow row = builder.build(second, &sum);
    EXPECT_EQ(row, (weightRow{0.0, 0.0, 0.0}));
    EXPECT_FALSE(std::signbit(row.at(2))) << "-0.0 would be shown with its sign";
    EXPECT_EQ(sum, 0.0);
}
