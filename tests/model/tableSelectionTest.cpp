// SPDX-License-Identifier: Apache-2.0
#include "model/tableSelection.h"

#include <QStandardItemModel>

#include <gtest/gtest.h>

#include <vector>

namespace
{

struct block {
    int top, left, bottom, right;
};

class tableSelection : public testing::Test
{
protected:
    QItemSelection selected(const std::vector<block> &blocks) const
    {
        QItemSelection selection;
        for (const block &b : blocks)
            selection.append(
                QItemSelectionRange(table_.index(b.top, b.left), table_.index(b.bottom, b.right)));
        return selection;
    }

    const QStandardItemModel table_{6, 4};
};

} // namespace

TEST_F(tableSelection, tellsWholeLinesFromPartOfThem)
{
    const struct {
        const char *what;
        std::vector<block> blocks;
        QVector<int> rowsWithCell, wholeRows, wholeColumns;
        cellIndex topRight;
    } cases[] = {
        {"nothing", {}, {}, {}, {}, {-1, -1}},
        {"a cell", {{2, 1, 2, 1}}, {2}, {}, {}, {2, 1}},
        {"a column", {{0, 3, 5, 3}}, {0, 1, 2, 3, 4, 5}, {}, {3}, {0, 3}},
        {"a column in two parts",
         {{3, 0, 5, 0}, {0, 0, 2, 0}},
         {0, 1, 2, 3, 4, 5},
         {},
         {0},
         {0, 0}},
        {"a row beside a cell", {{4, 0, 4, 3}, {1, 2, 1, 2}}, {1, 4}, {4}, {}, {1, 2}},
        {"top row in two parts", {{2, 3, 4, 3}, {2, 0, 2, 1}}, {2, 3, 4}, {}, {}, {2, 3}},
        {"everything",
         {{0, 0, 5, 3}},
         {0, 1, 2, 3, 4, 5},
         {0, 1, 2, 3, 4, 5},
         {0, 1, 2, 3},
         {0, 3}},
    };
    for (const auto &c : cases) {
        const QItemSelection selection = selected(c.blocks);
        EXPECT_EQ(rowsWithSelectedCell(selection), c.rowsWithCell) << c.what;
        EXPECT_EQ(wholeRows(selection, 4), c.wholeRows) << c.what;
        EXPECT_EQ(wholeColumns(selection, 6), c.wholeColumns) << c.what;
        EXPECT_TRUE(topRightCell(selection) == c.topRight) << c.what;
    }
}

TEST_F(tableSelection, selectsRunsOfRowsAsOneRange)
{
    const QItemSelection selection = selectionOfRows({5, 1, 2, 0, 2}, table_);
    EXPECT_EQ(selection.size(), 2);
    EXPECT_EQ(wholeRows(selection, 4), (QVector<int>{0, 1, 2, 5}));
    EXPECT_TRUE(selectionOfRows({}, table_).isEmpty());
}
