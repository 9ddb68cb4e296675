// SPDX-License-Identifier: Apache-2.0
//
// The value slider, a step at a time.

#include <QSignalSpy>

#include "model/messages.h"
#include "support/editScene.h"

class sliderDrag : public EditScene
{
protected:
    sliderDrag() : moved_(model_, SIGNAL(topRightCellDataChanged(double, double, double)))
    {
        loadBody();
    }

    void drag(double value, bool absolute = false) { call("dragSlider", value, absolute); }
    // What was last told of the leading cell: "0.6 0.5 0.5".
    std::string told()
    {
        char text[64] = "";
        if (!moved_.isEmpty())
            std::snprintf(text, sizeof text, "%g %g %g", moved_.last().at(0).toDouble(),
                          moved_.last().at(1).toDouble(), moved_.last().at(2).toDouble());
        moved_.clear();
        return text;
    }

    QSignalSpy moved_;
};

TEST_F(sliderDrag, movesByTheWayThatIsNewSinceTheLastStep)
{
    selectCells(1, 0, 2, 0);
    drag(0.1);
    EXPECT_EQ(told(), "0.6 0.5 0.5");
    EXPECT_EQ(weights(0) + ", " + weights(1), "0.6 0.24 0.16, 0.35 0.216667 0.433333");
    drag(0.2);
    EXPECT_EQ(told(), "0.7 0.6 0.5");
    EXPECT_EQ(weights(0) + ", " + weights(1), "0.7 0.18 0.12, 0.45 0.183333 0.366667");
    drag(0.0);
    EXPECT_EQ(weights(0), "0.5 0.3 0.2") << "back to where it began";
    mel("undo; undo; undo");
    EXPECT_EQ(weights(0) + ", " + weights(1), "0.5 0.3 0.2, 0.25 0.25 0.5");
    mel("redo");
    EXPECT_EQ(shown(1), "0.600 0.240 0.160");
}

TEST_F(sliderDrag, startsAnewWithEachSelection)
{
    selectCells(1, 0, 1, 0);
    drag(0.1);
    selectCells(2, 2, 2, 2);
    drag(0.1);
    EXPECT_EQ(told(), "0.6 0.5 0.5");
    EXPECT_EQ(weights(1), "0.2 0.2 0.6");
    selectCells(0, 1, 2, 1); // from the shape row on, which has no weight to start from
    drag(0.1);
    EXPECT_EQ(told(), "0.34 0.24 0.24");
    EXPECT_EQ(weights(1), "0.175 0.3 0.525");
}

TEST_F(sliderDrag, setsTheRightmostFreeCellOfEachRow)
{
    lockCell(2, 1);
    lockRow(3);
    selectCells(1, 0, 3, 1);
    drag(0.9, true);
    EXPECT_EQ(told(), "0.9 0.3 0.3");
    EXPECT_EQ(weights(0), "0.0714286 0.9 0.0285714");
    EXPECT_EQ(weights(1), "0.75 0.25 0") << "no more than the locked cell leaves";
    EXPECT_EQ(weights(2), "0.334 0.333 0.333");
    drag(1.5, true);
    EXPECT_EQ(weights(0), "0 1 0");
    EXPECT_EQ(takeErrors(), std::string(kNoCellToDeductFrom) + "\n" + kNoCellToDeductFrom)
        << "vtx[1] has but the edited weight and the locked one";
    drag(-1, true);
    EXPECT_EQ(weights(1), "0 0.25 0.75");
    EXPECT_EQ(takeErrors() + takeInfos(), "");
}

TEST_F(sliderDrag, passesOverWhatTheFilterHides)
{
    makeSkin("hat", {"hip", "knee", "ankle"}, {{0.5, 0.5, 0}, {1, 0, 0}, {1, 0, 0}, {1, 0, 0}});
    load("hat");
    call("toggleFilter", true);
    selectCells(1, 0, 1, 2);
    drag(0.25, true);
    EXPECT_EQ(weights(0, "hat"), "0.75 0.25 0");
}

TEST_F(sliderDrag, movesAWholeColumnFromItsTopmostWeight)
{
    makeSkin("hat", {"head", "ankle"}, {{0.5, 0.5}, {0.9, 0.1}, {1, 0}, {0.5, 0.5}});
    load("body hat");
    selectColumn(2);
    drag(0.1);
    EXPECT_EQ(told(), "0.3 0.2 0.2");
    EXPECT_EQ(weights(0), "0.4375 0.2625 0.3");
    EXPECT_EQ(weights(3) + ", " + weights(1, "hat"), "0.9 0 0.1, 0.8 0.2") << "every shape's";
    drag(0.2);
    EXPECT_EQ(told(), "0.4 0.3 0.2");
    EXPECT_EQ(weights(1, "hat"), "0.7 0.3");
    mel("undo; undo");
    EXPECT_EQ(weights(3) + ", " + weights(1, "hat"), "1 0 0, 0.9 0.1");
    drag(0.25, true);
    EXPECT_EQ(weights(0) + ", " + weights(1, "hat"), "0.46875 0.28125 0.25, 0.75 0.25");
    EXPECT_EQ(shown(1), "0.469 0.281 0.250 ");
    selectCells(0, 0, 9, 1);
    drag(0.6, true); // of two columns the right one
    EXPECT_EQ(weights(0), "0.26087 0.6 0.13913");
}

TEST_F(sliderDrag, refusesAColumnBesideLocks)
{
    lockCell(2, 1);
    selectColumn(0);
    drag(0.1);
    EXPECT_EQ(takeInfos() + told(), "") << "a locked cell, in whatever column";
    lockRow(3);
    selectColumn(0);
    drag(0.1);
    EXPECT_EQ(takeInfos(), kJointIsLocked);
    call("newUnlockAll");
    lockColumn(0);
    drag(0.1);
    EXPECT_EQ(takeInfos(), kJointIsLocked);
    EXPECT_EQ(weights(0) + weights(1), "0.5 0.3 0.20.25 0.25 0.5");
    selectColumn(1);
    drag(0.1);
    EXPECT_EQ(allWeights(), "0.5 0.4 0.1; 0.25 0.35 0.4; 0.334 0.433 0.233; 1 0 0")
        << "the locked joint is held";
    drag(0.9, true);
    EXPECT_EQ(allWeights(), "0.5 0.5 0; 0.25 0.75 0; 0.334 0.666 0; 1 0 0");
    mel("undo; undo");
    EXPECT_EQ(allWeights(), "0.5 0.3 0.2; 0.25 0.25 0.5; 0.334 0.333 0.333; 1 0 0");
}

TEST_F(sliderDrag, needsACellWithAWeight)
{
    selectCells(0, 0, 0, 2);
    drag(0.5);
    EXPECT_EQ(takeErrors(), kNothingToDrag);
    view_->clearSelection();
    drag(0.5);
    EXPECT_EQ(takeErrors(), kNothingToDrag);
}
