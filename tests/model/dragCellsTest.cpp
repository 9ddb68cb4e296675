// SPDX-License-Identifier: Apache-2.0
#include "model/dragCells.h"

#include <QStandardItemModel>

#include <gtest/gtest.h>

class dragCells : public testing::Test
{
protected:
    // Shape rows 0 and 4; the second shape lacks the middle joint.
    const weightRows rows_ = {{-1, -1, -1, -1},   {0, 0.5, 0.3, 0.2}, {0, 1, 0, 0},
                              {0, 0.2, 0.2, 0.6}, {-1, -1, -1, -1},   {1, 0.4, -2, 0.6}};
    QStandardItemModel model_{6, 3};
    QItemSelection selection_;
    lockState locks_;
    QSet<int> hidden_;

    void add(int top, int left, int bottom, int right)
    {
        selection_.append(
            QItemSelectionRange(model_.index(top, left), model_.index(bottom, right)));
    }
    // "1:2 2:2"; the leading cell alone must be the first of them.
    std::string dragged() const
    {
        std::string text;
        const QVector<cellIndex> cells = draggedCells(selection_, rows_, locks_, hidden_);
        for (const cellIndex &cell : cells)
            text += (text.empty() ? "" : " ") + std::to_string(cell.row) + ":" +
                    std::to_string(cell.column);
        const cellIndex lead = firstDraggedCell(selection_, rows_, locks_, hidden_);
        EXPECT_EQ(lead.row, cells.isEmpty() ? -1 : cells.first().row);
        EXPECT_EQ(lead.column, cells.isEmpty() ? -1 : cells.first().column);
        return text;
    }
};

TEST_F(dragCells, areTheRightmostFreeOnesOfEachRow)
{
    EXPECT_EQ(dragged(), "");
    add(0, 0, 0, 2); // a shape row alone
    EXPECT_EQ(dragged(), "");
    add(3, 0, 5, 1); // across the second shape's row, and onto a joint that it lacks
    EXPECT_EQ(dragged(), "3:1 5:0");
    add(1, 0, 1, 0);
    add(1, 2, 2, 2); // right of what is selected in that row already
    EXPECT_EQ(dragged(), "1:2 2:2 3:1 5:0");
    locks_.lockCell(1, 2);
    EXPECT_EQ(dragged(), "1:0 2:2 3:1 5:0");
    hidden_.insert(2);
    EXPECT_EQ(dragged(), "1:0 3:1 5:0");
    locks_.lockRow(1);
    EXPECT_EQ(dragged(), "3:1 5:0");
    locks_.lockJoint(0);
    EXPECT_EQ(dragged(), "3:1");
}

TEST_F(dragCells, findTheTopmostWeightOfAColumn)
{
    EXPECT_EQ(topmostWeight(rows_, 1), 1);
    EXPECT_EQ(topmostWeight(rows_.mid(4), 2), 1);
    EXPECT_EQ(topmostWeight(rows_.mid(4), 1), -1) << "no influence of that shape";
    EXPECT_EQ(topmostWeight(rows_, 7), -1);
}

TEST(sliderMove, appliesWhatTheStepsBeforeHaveNot)
{
    const struct {
        double value;
        bool isAbsolute;
        double lastValue, origValue, weight, moved;
    } cases[] = {
        {0.1, false, 0.3, 0.3, 0.5, 0.6},   // the first step
        {0.25, false, 0.4, 0.3, 0.5, 0.65}, // 0.1 of it was applied before
        {0.0, false, 0.4, 0.3, 0.5, 0.4},   // back to where it began
        {-0.9, false, 0.3, 0.3, 0.5, 0.0},  {0.9, false, 0.3, 0.3, 0.5, 1.0},
        {0.25, true, 0.4, 0.3, 0.5, 0.25},  {-0.1, true, 0.4, 0.3, 0.5, 0.0},
        {1.5, true, 0.4, 0.3, 0.5, 1.0},
    };
    for (const auto &c : cases)
        EXPECT_DOUBLE_EQ(
            movedWeight(moveTo(c.value, c.isAbsolute, c.lastValue, c.origValue), c.weight), c.moved)
            << c.value << (c.isAbsolute ? " absolute" : " relative");
}
