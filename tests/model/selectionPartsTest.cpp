// SPDX-License-Identifier: Apache-2.0
#include "model/selectionParts.h"

#include <QStandardItemModel>

#include <gtest/gtest.h>

class selectionPartsTest : public testing::Test
{
protected:
    void add(int top, int left, int bottom, int right)
    {
        selection_.append(
            QItemSelectionRange(model_.index(top, left), model_.index(bottom, right)));
    }
    // "columns 1, rows 2, cells 0:2"
    std::string parts() const
    {
        const selectionParts parts(selection_, model_.rowCount(), model_.columnCount());
        std::string text = "columns";
        for (const int column : parts.columns())
            text += " " + std::to_string(column);
        text += ", rows";
        for (const int row : parts.rows())
            text += " " + std::to_string(row);
        text += ", cells";
        for (const cellIndex &cell : parts.cells())
            text += " " + std::to_string(cell.row) + ":" + std::to_string(cell.column);
        return text;
    }

    QStandardItemModel model_{4, 3};
    QItemSelection selection_;
};

TEST_F(selectionPartsTest, leavesTheCellsThatBelongToNoWholeLine)
{
    EXPECT_TRUE(selectionParts(selection_, 4, 3).isEmpty());
    add(0, 1, 3, 1); // a column
    add(2, 0, 2, 0); // with it and the next a row
    add(2, 2, 2, 2);
    add(0, 2, 1, 2);
    EXPECT_EQ(parts(), "columns 1, rows 2, cells 0:2 1:2");
    const selectionParts whole(selection_, 4, 3);
    EXPECT_TRUE(whole.contains({3, 1}));
    EXPECT_TRUE(whole.contains({2, 0}));
    EXPECT_TRUE(whole.contains({1, 2}));
    EXPECT_FALSE(whole.contains({3, 2}));
}

TEST_F(selectionPartsTest, keepsTheOrderOfSelecting)
{
    add(3, 0, 3, 2);
    add(0, 2, 0, 2);
    add(1, 0, 1, 2);
    add(0, 0, 0, 0);
    EXPECT_EQ(parts(), "columns, rows 3 1, cells 0:2 0:0");
    EXPECT_EQ(cellsOf(selection_).size(), 8);
}

TEST_F(selectionPartsTest, seesRowsAndColumnsInATableThatIsSelectedAsAWhole)
{
    add(0, 0, 3, 2);
    EXPECT_EQ(parts(), "columns 0 1 2, rows 0 1 2 3, cells");
}
