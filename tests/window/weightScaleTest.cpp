// SPDX-License-Identifier: Apache-2.0
#include "ui/weightScale.h"

#include <gtest/gtest.h>

TEST(weightScale, readsHowManyDigitsAPrecisionMeans)
{
    const struct {
        const char *text;
        int digits;
    } cases[] = {
        {"0.001", 3},        {"0.1", 1},   {"0.0011", 3}, {".01", 2},  {"0.00501", 5},
        {"0.000000001", 9},  {"x.x1", 2},  {"1.0", 0},    {"10.1", 0}, {"", 0},
        {"0.0000000001", 0}, {"0.002", 0}, {"1", 0},      {"0,01", 0}, {"3", 0},
    };
    for (const auto &each : cases)
        EXPECT_EQ(precisionDigits(QLatin1String(each.text)), each.digits) << each.text;
}

TEST(weightScale, turnsNumbersIntoSliderSteps)
{
    const struct {
        double value;
        int scale;
        int nearest;
        int before;
    } cases[] = {
        {0.5, 1000, 500, 500},
        {0.0003, 10000, 3, 3}, // the product is 2.9999999999999996
        {0.29, 100, 29, 29},
        {0.12349, 10000, 1235, 1234},
        {-0.12349, 10000, -1235, -1234},
        {0.0, 1000, 0, 0},
        {1e300, 10000, 2000000000, 2000000000},
        {-1e300, 1, -2000000000, -2000000000},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(nearestStep(each.value, each.scale), each.nearest) << each.value;
        EXPECT_EQ(lastStepBefore(each.value, each.scale), each.before) << each.value;
    }
}

TEST(weightScale, fitsTheValueSliderToDigitsAndMode)
{
    for (int digits = 1; digits <= kMostDigits; ++digits) {
        const sliderRange relative = valueSliderRange(digits, false);
        const sliderRange absolute = valueSliderRange(digits, true);
        EXPECT_EQ(valueAt(absolute.maximum, stepsPerUnit(digits)), 1.0) << digits;
        EXPECT_EQ(absolute.minimum, 0);
        EXPECT_EQ(relative.maximum, absolute.maximum);
        EXPECT_EQ(relative.minimum, -relative.maximum);
        // Each step reads back as itself.
        const int step = absolute.maximum / 7;
        const QString text = fixedText(valueAt(step, stepsPerUnit(digits)), digits);
        EXPECT_EQ(nearestStep(text.toDouble(), stepsPerUnit(digits)), step) << digits;
    }
}

TEST(weightScale, takesOnlyNumbersThatCanBeReckonedWith)
{
    const struct {
        const char *text;
        bool isValid;
        double value;
    } cases[] = {
        {"0.25", true, 0.25}, {" -1e-1 ", true, -0.1}, {"", false, 0},
        {" ", false, 0},      {"nan", false, 0},       {"-inf", false, 0},
        {"1e999", false, 0},  {"0,5", false, 0},       {"half", false, 0},
    };
    for (const auto &each : cases) {
        const typedNumber number = numberFrom(QLatin1String(each.text));
        EXPECT_EQ(number.isValid, each.isValid) << each.text;
        EXPECT_EQ(number.value, each.value) << each.text;
    }
}
