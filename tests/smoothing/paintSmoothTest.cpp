// SPDX-License-Identifier: Apache-2.0
#include "smoothing/smoothingScene.h"

#include "model/messages.h"

class paintSmooth : public SmoothingScene
{
protected:
    // A strip in which vertex 1 has some of three joints, its neighbours some of two.
    void loadStrip(const std::string &mesh = "body")
    {
        makeStrip(mesh);
        mel("skinPercent -tv hip 0.8 -tv knee 0.15 -tv ankle 0.05 " + mesh + "Skin " + mesh +
            ".vtx[1]; skinPercent -tv hip 0.2 -tv knee 0.8 " + mesh + "Skin " + mesh + ".vtx[0] " +
            mesh + ".vtx[2] " + mesh + ".vtx[5]; select -cl");
        load(mesh);
    }

    // A text per cell, as "..#" per row.
    std::string lockedCells() const
    {
        std::string text;
        for (int column = 0; column < model_->columnCount(); ++column)
            text += model_->flags(model_->index(2, column)) & Qt::ItemIsEditable ? '.' : '#';
        return text;
    }
};

TEST_F(paintSmooth, saysWhyItDoesNothing)
{
    paint(0.5);
    EXPECT_EQ(takeInfos(), kNoWeightListYet);
    loadStrip();
    lockColumn(0);
    const std::string items = undoItems();
    paint(0.5);
    EXPECT_EQ(takeInfos(), kLockedJointToSmooth);
    selectCells(-1, -1, -1, -1);
    paint(0.5);
    EXPECT_EQ(takeInfos(), kNoJointToSmooth);
    selectCells(1, 0, 1, 1);
    paint(0.5);
    EXPECT_EQ(takeInfos(), kCellsOfSeveralJoints);
    selectCells(0, 1, 0, 1);
    paint(0.5);
    EXPECT_EQ(takeInfos(), kDataNotSetUp) << "a shape has no weight";
    EXPECT_EQ(undoItems(), items);
    EXPECT_EQ(weights(1), "0.8 0.15 0.05");
}

TEST_F(paintSmooth, drawsTheJointTowardsItsNeighbours)
{
    loadStrip();
    const std::string before = allWeights();
    selectCells(2, 0, 2, 0);
    takeCommands();
    paint(0.5);
    EXPECT_EQ(takeCommands(), "korvexCmd -skinPaintSmooth");
    EXPECT_EQ(weights(1), "0.5 0.375 0.125");
    EXPECT_EQ(shown(2), "0.500 0.375 0.125");
    mel("undo");
    EXPECT_EQ(allWeights(), before);
    EXPECT_EQ(shown(2), "0.800 0.150 0.050");
    mel("redo");
    EXPECT_EQ(weights(1), "0.5 0.375 0.125");
    EXPECT_EQ(shown(2), "0.500 0.375 0.125");
    EXPECT_EQ(weights(0), "0.2 0.8 0") << "counted, not painted";
}

TEST_F(paintSmooth, leavesTheRoundingToTheOtherJoints)
{
    makeSkin("body", {"hip", "knee"}, {{1, 0}, {0, 1}, {0.501, 0.499}, {0.5, 0.5}});
    load("body");
    selectCells(1, 0, 1, 0);
    paint(0.499666);
    EXPECT_EQ(weights(0), "0.6255 0.3745");
    EXPECT_EQ(shown(1), "0.626 0.374");
}

TEST_F(paintSmooth, paintsAWholeColumnOfAllItsShapesInOneStep)
{
    loadStrip();
    loadStrip("other");
    makeSkin("third", {"toe"}, {{1}, {1}, {1}, {1}});
    load("body other third");
    const std::string before = allWeights() + allWeights("other");
    const std::string items = undoItems();
    selectColumn(0);
    takeErrors();
    paint(1);
    EXPECT_EQ(takeInfos() + takeErrors(), "");
    EXPECT_EQ(undoItems(), std::to_string(std::stoi(items) + 1));
    EXPECT_EQ(weights(1), "0.2 0.6 0.2");
    EXPECT_EQ(allWeights("other"), allWeights());
    mel("undo");
    EXPECT_EQ(allWeights() + allWeights("other"), before);
}

TEST_F(paintSmooth, leavesOutLockedRowsAndCells)
{
    loadStrip();
    lockRow(1);
    lockCell(2, 0);
    selectCells(1, 0, 3, 0);
    paint(1);
    EXPECT_EQ(weights(0) + ", " + weights(1), "0.2 0.8 0, 0.8 0.15 0.05");
    EXPECT_EQ(weights(2), "0.933333 0.0666667 0");
    selectCells(1, 0, 2, 0);
    paint(1);
    EXPECT_EQ(takeInfos(), kDataNotSetUp);
}

TEST_F(paintSmooth, endsWithLockedJointsFreeInMaya)
{
    loadStrip();
    lockColumn(2);
    ASSERT_EQ(melString("getAttr ankle.liw"), "1");
    selectCells(2, 0, 2, 0);
    paint(0.5);
    EXPECT_EQ(weights(1), "0.5 0.45 0.05");
    EXPECT_EQ(melString("getAttr ankle.liw"), "0");
    EXPECT_EQ(lockedCells(), "..#") << "the table has it locked still";
    mel("undo; redo");
    EXPECT_EQ(weights(1), "0.5 0.45 0.05") << "held again";
}

TEST_F(paintSmooth, floodsNothingWhenTheToolCannotBeSetUp)
{
    loadStrip();
    lockColumn(2);
    selectCells(2, 0, 2, 0);
    paint(0.5);
    mel("undo");
    const std::string before = allWeights();
    mel("undoInfo -swf 0; rename hip pelvis; artSkinSelectInfluence artAttrSkinPaintCtx knee;"
        "undoInfo -swf 1");
    const std::string hands = handsOfTheUser();
    takeErrors();
    mel("catch(`redo`)");
    EXPECT_NE(takeErrors().find("No object matches name: hip"), std::string::npos);
    EXPECT_EQ(allWeights(), before) << "neither hip nor knee";
    EXPECT_EQ(handsOfTheUser(), hands);
    EXPECT_EQ(melString("getAttr ankle.liw"), "0");
}

TEST_F(paintSmooth, saysThatTheJointIsGone)
{
    loadStrip();
    selectCells(2, 0, 2, 0);
    mel("delete hip");
    paint(0.5);
    EXPECT_EQ(takeInfos(), kNoJointIndex);
}

TEST_F(paintSmooth, tellsJointsOfOneNameApart)
{
    mel("select -cl; joint -n left; joint -n hand; select -cl; joint -n right; joint -n tip;"
        "polyPlane -sx 1 -sy 1 -n palm; skinCluster -tsb -n palmSkin \"left|hand\" tip palm;"
        "rename tip hand; skinPercent -tv \"right|hand\" 1 palmSkin palm.vtx[0];"
        "skinPercent -tv \"left|hand\" 1 palmSkin palm.vtx[1:3]");
    load("palm");
    ASSERT_EQ(columnNames(), "hand hand");
    takeErrors();
    selectCells(1, 1, 1, 1);
    paint(0.5);
    EXPECT_EQ(takeErrors(), "");
    EXPECT_EQ(weights(0, "palm"), "0.5 0.5");
}
