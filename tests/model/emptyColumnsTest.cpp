// SPDX-License-Identifier: Apache-2.0
#include "model/emptyColumns.h"

#include <gtest/gtest.h>

namespace
{

QList<int> columnsWithoutWeight(const weightRows &rows, int columnCount)
{
    emptyColumns empty;
    empty.find(rows, columnCount);
    return empty.columns();
}

} // namespace

TEST(emptyColumns, areThoseWithoutWeightInAnyRow)
{
    const weightRows rows = {
        {-1.0, -1.0, -1.0, -1.0, -1.0, -1.0}, // a shape row
        {0.0, 0.5, 0.0, -2.0, 0.5, 0.0},
        {3.0, 0.0, 0.0, -2.0, 0.9999, 0.0001},
    };
    EXPECT_EQ(columnsWithoutWeight(rows, 5), (QList<int>{1, 2}));
    EXPECT_EQ(columnsWithoutWeight(rows.mid(0, 1), 5), (QList<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(columnsWithoutWeight(weightRows(), 2), (QList<int>{0, 1}));
    EXPECT_EQ(columnsWithoutWeight(rows, 0), QList<int>());
}

TEST(emptyColumns, followRowsThatChange)
{
    weightRows rows = {{-1.0, -1.0, -1.0}, {0.0, 1.0, 0.0}, {0.0, 0.5, 0.5}};
    emptyColumns empty;
    empty.find(rows, 2);
    const struct {
        int row;
        weightRow weights;
        QList<int> empty;
    } changes[] = {
        {2, {0.0, 1.0, 0.0}, {1}},  {1, {0.0, 0.0, 1.0}, {}},  {2, {0.0, 0.0, 1.0}, {0}},
        {1, {0.0, -2.0, 0.0}, {0}}, {2, {0.0, 0.1, 0.0}, {1}},
    };
    for (const auto &change : changes) {
        rows[change.row] = change.weights;
        empty.follow(rows, change.row);
        EXPECT_EQ(empty.columns(), change.empty);
        EXPECT_EQ(empty.columns(), columnsWithoutWeight(rows, 2));
    }
}
