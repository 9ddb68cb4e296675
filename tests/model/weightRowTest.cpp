// SPDX-License-Identifier: Apache-2.0
#include "model/weightRow.h"

#include <gtest/gtest.h>

#include <limits>

TEST(weightRow, tellsNormalizedSumsAtTheDisplayedPrecision)
{
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const struct {
        int places;
        double sum;
        bool normalized;
    } cases[] = {
        {3, 1.0, true},   {3, 0.9995, true},  {3, 0.9985, false}, {3, 0.999, false},
        {3, 1.001, true}, {3, 1.0015, false}, {1, 0.95, true},    {1, 0.85, false},
        {0, 0.5, true},   {0, 2.0, false},    {-1, 10.0, true},   {3, notANumber, false},
    };
    for (const auto &c : cases)
        EXPECT_EQ(isNormalized(c.sum, normalizationTolerance(c.places)), c.normalized)
            << c.sum << " at " << c.places;
}

TEST(weightRow, multipliesTheToleranceUpBySquaring)
{
    EXPECT_EQ(normalizationTolerance(1), 0.1);
    EXPECT_EQ(normalizationTolerance(3), 0.1 * (0.1 * 0.1));
    EXPECT_EQ(normalizationTolerance(4), (0.1 * 0.1) * (0.1 * 0.1));
    EXPECT_DOUBLE_EQ(normalizationTolerance(-2), 100.0);
}

TEST(weightRow, sumsUpWithoutTagAndInertCells)
{
    const rowSummary summary = summarize(weightRow{7.0, 0.25, -2.0, 0.0, 0.75, -0.125});
    EXPECT_DOUBLE_EQ(summary.sum, 0.875);
    EXPECT_EQ(summary.nonZeroCount, 2);
}
