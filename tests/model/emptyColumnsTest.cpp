// SPDX-License-Identifier: Apache-2.0
#include "model/emptyColumns.h"

#include <gtest/gtest.h>

TEST(emptyColumns, areThoseWithoutWeightInAnyRow)
{
    const weightRows rows = {
        {-1.0, -1.0, -1.0, -1.0, -1.0, -1.0}, // a shape row
        {0.0, 0.5, 0.0, -2.0, 0.5, 0.0},
        {3.0, 0.0, 0.0, -2.0, 0.9999, 0.0001},
    };
    EXPECT_EQ(emptyColumns(rows, 5), (QList<int>{1, 2}));
    EXPECT_EQ(emptyColumns(rows.mid(0, 1), 5), (QList<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(emptyColumns(weightRows(), 2), (QList<int>{0, 1}));
    EXPECT_EQ(emptyColumns(rows, 0), QList<int>());
}
