// SPDX-License-Identifier: Apache-2.0
//
// Flooding a joint column.

#include "model/messages.h"
#include "support/editScene.h"

class floodReplace : public EditScene
{
protected:
    floodReplace()
    {
        makeSkin("hat", {"knee", "head"}, {{0.5, 0.5}, {0.9, 0.1}, {1, 0}, {0, 1}});
        makeSkin("body", {"hip", "knee"}, {{0.5, 0.5}, {0.25, 0.75}, {1, 0}, {0, 1}});
        load("body hat"); // rows 1 to 4 and 6 to 9; columns hip, knee, head
    }

    void flood(double value) { call("replaceValue", value); }
};

TEST_F(floodReplace, fillsTheUpperShapeAlone)
{
    const std::string hat = allWeights("hat");
    const struct {
        double value;
        const char *weights;
    } cases[] = {
        {0.25, "0.75 0.25; 0.75 0.25; 0.75 0.25; 0.75 0.25"},
        {1.5, "0 1; 0 1; 0 1; 0 1"},
        {-0.2, "1 0; 1 0; 1 0; 1 0"},
    };
    for (const auto &c : cases) {
        selectColumn(1);
        flood(c.value);
        EXPECT_EQ(allWeights(), c.weights) << c.value;
        EXPECT_EQ(allWeights("hat"), hat);
        mel("undo");
        EXPECT_EQ(allWeights(), "0.5 0.5; 0.25 0.75; 1 0; 0 1");
        EXPECT_EQ(shown(2), "0.250 0.750 ");
        mel("redo");
        EXPECT_EQ(allWeights(), c.weights) << c.value;
        mel("undo");
    }
    selectColumn(2); // a joint of the lower shape
    flood(0.5);
    EXPECT_EQ(allWeights("hat"), "0.5 0.5; 0.5 0.5; 0.5 0.5; 0.5 0.5");
    EXPECT_EQ(shown(7), " 0.500 0.500");
    load("body.vtx[0:2]");
    selectColumn(1);
    flood(0.25);
    EXPECT_EQ(allWeights(), "0.75 0.25; 0.75 0.25; 0.75 0.25; 0 1") << "the last is not loaded";
    EXPECT_EQ(takeErrors() + takeInfos(), "");
}

TEST_F(floodReplace, takesOneColumnWithoutLocks)
{
    flood(0.5);
    EXPECT_EQ(takeInfos(), kNoJointToFlood);
    selectCells(0, 0, 9, 1);
    flood(0.5);
    EXPECT_EQ(takeInfos(), kManyJointsToFlood);
    lockCell(7, 1); // of a shape that would not be filled
    selectColumn(1);
    flood(0.5);
    EXPECT_EQ(takeInfos(), kJointHasLocks);
    lockColumn(0);
    flood(0.5);
    EXPECT_EQ(takeInfos(), kJointHasLocks);
    EXPECT_EQ(allWeights(), "0.5 0.5; 0.25 0.75; 1 0; 0 1");
}

TEST_F(floodReplace, leavesLockedRowsAndSaysHowMany)
{
    lockRow(2);
    lockRow(8); // of the other shape
    selectColumn(1);
    flood(0.1);
    EXPECT_EQ(allWeights(), "0.9 0.1; 0.25 0.75; 0.9 0.1; 0.9 0.1");
    EXPECT_EQ(takeInfos(), "Locked vertices that kept their weights: 1.");
    mel("undo; redo");
    EXPECT_EQ(allWeights(), "0.9 0.1; 0.25 0.75; 0.9 0.1; 0.9 0.1");
    for (const int row : {1, 3, 4}) {
        lockRow(row);
    }
    const std::string items = undoItems();
    selectColumn(1);
    flood(0.7);
    EXPECT_EQ(takeInfos(), "Locked vertices that kept their weights: 4.");
    EXPECT_EQ(allWeights(), "0.9 0.1; 0.25 0.75; 0.9 0.1; 0.9 0.1");
    EXPECT_EQ(undoItems(), items) << "an edit that does nothing could not be undone";
    melError("korvexCmd -replace"); // the flood before, by a script
    EXPECT_EQ(takeInfos(), kDataNotSetUp);
    EXPECT_EQ(allWeights(), "0.9 0.1; 0.25 0.75; 0.9 0.1; 0.9 0.1");
}
