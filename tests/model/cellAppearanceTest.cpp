// SPDX-License-Identifier: Apache-2.0
#include "model/cellAppearance.h"

#include <gtest/gtest.h>

// Weights that a tool wrote are shown without having been rounded.
TEST(cellAppearance, coloursWhatDoesNotReadAsZero)
{
    EXPECT_EQ(cellBackground(0.0005, false, QColor(), {3, 2}), QColor(Qt::darkCyan));
    EXPECT_EQ(cellBackground(0.0004, false, QColor(), {3, 2}), QColor());
    EXPECT_EQ(cellBackground(0.0004, false, QColor(), {4, 2}), QColor(Qt::darkCyan));
}
