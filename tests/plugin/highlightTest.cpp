// SPDX-License-Identifier: Apache-2.0
//
// The table's selection on its way to Maya.

#include "model/messages.h"
#include "support/editorScene.h"

class highlight : public EditorScene
{
protected:
    highlight()
    {
        makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
        makeSkin("hat", {"head", "hip"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
        load("body hat"); // rows 0 to 4, 5 to 9
        mel("select -cl");
    }
};

TEST_F(highlight, selectsTheVerticesOfTheCells)
{
    call("toggleHilight", true);
    selectCells(3, 0, 7, 0);
    EXPECT_EQ(selectedInMaya(), "body.vtx[2:3] hat.vtx[0:1]");
    selectCells(9, 2, 9, 2);
    EXPECT_EQ(selectedInMaya(), "hat.vtx[3]");
    selectCells(5, 0, 5, 2);
    EXPECT_EQ(selectedInMaya(), "hat.vtx[3]") << "a shape row stands for no vertex";
    EXPECT_EQ(model_->rowCount(), 10);
}

TEST_F(highlight, selectsAtOnceWhenItIsSwitchedOn)
{
    selectCells(1, 0, 2, 1);
    EXPECT_EQ(selectedInMaya(), "");
    call("toggleHilight", true);
    EXPECT_EQ(selectedInMaya(), "body.vtx[0:1]");
    mel("hilite hip");
    call("toggleHilight", false);
    EXPECT_EQ(hilitedInMaya(), "");
    selectCells(3, 0, 3, 0);
    EXPECT_EQ(selectedInMaya(), "body.vtx[0:1]");
}

TEST_F(highlight, hilitesTheJointsOfWholeColumns)
{
    call("toggleHilight", true);
    selectColumn(1);
    call("columnHeaderSelected", 0);
    EXPECT_EQ(hilitedInMaya(), "knee");
    selectCells(0, 1, 9, 2);
    call("columnHeaderSelected", 0);
    EXPECT_EQ(hilitedInMaya(), "knee head");
    selectCells(0, 1, 3, 1);
    call("columnHeaderSelected", 0);
    EXPECT_EQ(hilitedInMaya(), "") << "a part of a column";
}

TEST_F(highlight, selectsTheVerticesOfWholeRows)
{
    call("toggleHilight", true);
    selectRow(7);
    call("rowHeaderSelected", 0);
    EXPECT_EQ(selectedInMaya(), "hat.vtx[1]");
}

TEST_F(highlight, doesNotReloadWhileTheTableFollowsMaya)
{
    call("setAutoUpdate", true);
    call("toggleHilight", true);
    selectCells(2, 0, 2, 0);
    EXPECT_EQ(selectedInMaya(), "body.vtx[1]");
    EXPECT_EQ(model_->rowCount(), 10);
    EXPECT_EQ(view_->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(highlight, needsATable)
{
    load();
    ASSERT_EQ(model_->rowCount(), 0);
    call("toggleHilight", true);
    EXPECT_EQ(takeErrors(), kNothingLoaded);
}
