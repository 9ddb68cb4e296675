// SPDX-License-Identifier: Apache-2.0
#include "model/cellAppearance.h"

#include <gtest/gtest.h>

namespace
{

const displaySettings kSettings = {3, 2};
const QColor kJointColor(10, 20, 30);
const QColor kOwn; // the view's own colour

const weightRow kNormalized = {0.0, 0.25, 0.75, -2.0, 0.0};
const weightRow kCrowded = {0.0, 0.25, 0.25, 0.25, 0.25};
const weightRow kOff = {0.0, 0.25, 0.25, 0.25, 0.2};
const weightRow kShape = {-1.0, -1.0, -1.0, -1.0, -1.0};
const weightRow kShapeWithOff = {-5.0, -1.0, -1.0, -1.0, -1.0};

} // namespace

TEST(cellAppearance, showsWeightsAtThePrecisionAndMarkersAsNothing)
{
    EXPECT_EQ(cellText(0.5, kSettings), "0.500");
    EXPECT_EQ(cellText(0.0004, kSettings), "0.000");
    EXPECT_EQ(cellText(1.0, {5, 4}), "1.00000");
    EXPECT_EQ(cellText(kInertCell, kSettings), "");
    EXPECT_FALSE(cellText(kShapeRowTag, kSettings).isNull());
}

TEST(cellAppearance, coloursCells)
{
    const struct {
        const char *what;
        double cell;
        bool locked;
        QColor expected;
    } cases[] = {
        {"shape row", -1.0, false, kJointColor},
        {"shape row of a locked joint", -1.0, true, kJointColor},
        {"locked weight", 0.5, true, Qt::gray},
        {"locked zero", 0.0, true, Qt::gray},
        {"locked inert", -2.0, true, Qt::gray},
        {"reads as 0.001", 0.0005, false, Qt::darkCyan},
        {"reads as 0.000", 0.0004, false, kOwn},
        {"weight", 1.0, false, Qt::darkCyan},
        {"zero", 0.0, false, kOwn},
        {"inert", -2.0, false, kOwn},
    };
    for (const auto &c : cases)
        EXPECT_EQ(cellBackground(c.cell, c.locked, kJointColor, kSettings), c.expected) << c.what;
}

TEST(cellAppearance, coloursTextRedBeforeBlack)
{
    EXPECT_EQ(cellTextColor(kNormalized, 0, false, kSettings), kOwn);
    EXPECT_EQ(cellTextColor(kNormalized, 0, true, kSettings), QColor(Qt::black));
    EXPECT_EQ(cellTextColor(kOff, 3, true, kSettings), QColor(Qt::red));
    EXPECT_EQ(cellTextColor(kShape, 0, true, kSettings), kOwn);
}

TEST(cellAppearance, coloursRowHeaders)
{
    const struct {
        const char *what;
        weightRow row;
        bool locked;
        QColor background;
        QColor text;
    } cases[] = {
        {"shape", kShape, false, kOwn, kOwn},
        {"shape with a vertex that is off", kShapeWithOff, false, Qt::red, kOwn},
        {"vertex", kNormalized, false, kOwn, kOwn},
        {"locked", kNormalized, true, Qt::gray, Qt::black},
        {"crowded", kCrowded, false, Qt::yellow, Qt::black},
        {"crowded and locked", kCrowded, true, Qt::yellow, Qt::black},
        {"crowded and off", kOff, true, Qt::red, Qt::black},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(rowHeaderBackground(c.row, c.locked, kSettings), c.background) << c.what;
        EXPECT_EQ(rowHeaderTextColor(c.row, c.locked, kSettings), c.text) << c.what;
    }
}
