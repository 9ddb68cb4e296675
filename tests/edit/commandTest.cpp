// SPDX-License-Identifier: Apache-2.0
//
// korvexCmd as a script calls it.

#include "model/messages.h"
#include "support/editScene.h"

class command : public EditScene
{
};

TEST_F(command, reportsAnEditThatNobodyPrepared)
{
    const std::string items = undoItems();
    for (const char *flag : {"-round", "-replace", "-setData", "-dragSlider", "-dragSliderColumn",
                             "-skinPaintSmooth"}) {
        EXPECT_EQ(melError(std::string("korvexCmd ") + flag), "") << flag;
        EXPECT_EQ(takeInfos(), kDataNotSetUp) << flag;
    }
    EXPECT_EQ(undoItems(), items);
    mel("korvexCmd -numMax");
    EXPECT_EQ(takeInfos() + takeErrors(), "") << "no vertex has too many influences";
}

TEST_F(command, carriesTheCellsThatWereHandedOverLast)
{
    loadBody();
    EXPECT_TRUE(type(1, 0, "0.8"));
    for (const char *flag : {"-dragSlider", "-sd", "-ds", "-setData"}) {
        mel("undo");
        EXPECT_EQ(weights(0), "0.5 0.3 0.2");
        mel(std::string("korvexCmd ") + flag);
        EXPECT_EQ(weights(0), "0.8 0.12 0.08") << flag;
        EXPECT_EQ(shown(1), "0.800 0.120 0.080") << flag;
    }
}

TEST_F(command, carriesTheFirstOfSeveralFlags)
{
    loadBody();
    EXPECT_TRUE(type(1, 0, "0.8"));
    mel("undo");
    mel("korvexCmd -setData -numMax");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2") << "limiting comes first, and had nothing to do";
}

TEST_F(command, keepsItsOwnCopyOfTheEdit)
{
    loadBody();
    EXPECT_TRUE(type(1, 0, "0.8"));
    EXPECT_TRUE(type(2, 1, "1"));
    mel("undo; undo");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    EXPECT_EQ(weights(1), "0.25 0.25 0.5");
    mel("redo");
    EXPECT_EQ(weights(0), "0.8 0.12 0.08");
    EXPECT_EQ(weights(1), "0.25 0.25 0.5");
}

TEST_F(command, losesTheQueueWhereThereIsNothingToTakeBack)
{
    loadBody();
    EXPECT_TRUE(type(1, 0, "0.8"));
    mel("korvexCmd");
    EXPECT_EQ(melError("undo"),
              "Undo was not successful.  Damaged undo/redo information has been flushed.");
    EXPECT_EQ(undoItems(), "0");
    EXPECT_EQ(weights(0), "0.8 0.12 0.08");
}

TEST_F(command, leavesTheTableAloneWhileItFollowsTheSelection)
{
    loadBody();
    call("setAutoUpdate", true);
    mel("select -r body.vtx[1]");
    EXPECT_EQ(rowNames(), "bodyShape vtx[1]");
    EXPECT_TRUE(type(1, 0, "0.8"));
    EXPECT_EQ(rowNames(), "bodyShape vtx[1]");
    mel("undo; select -r body.vtx[0]");
    EXPECT_EQ(rowNames(), "bodyShape vtx[0]") << "it still follows";
}

TEST_F(command, refusesOperationsOnAnEmptyTable)
{
    const std::string items = undoItems();
    call("dragSlider", 0.5, true);
    EXPECT_EQ(takeErrors(), kNothingLoaded);
    call("applyMaxInfluence");
    EXPECT_EQ(takeErrors(), kNothingLoaded);
    call("replaceValue", 0.5);
    EXPECT_EQ(takeErrors(), kNothingLoaded);
    EXPECT_EQ(undoItems(), items);
}
