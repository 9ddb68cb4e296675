// SPDX-License-Identifier: Apache-2.0
#include "smoothing/smoothingScene.h"

#include <functional>

#include <QItemSelectionModel>

#include "model/messages.h"

namespace
{

constexpr char kPeak[] = "1 0 0; 0 1 0; 1 0 0; 1 0 0; 1 0 0; 1 0 0; 1 0 0; 1 0 0";
constexpr char kFlat[] = "1 0 0; 1 0 0; 1 0 0; 1 0 0; 1 0 0; 1 0 0; 1 0 0; 1 0 0";

} // namespace

class skinSmooth : public SmoothingScene
{
};

class bothSmoothings : public SmoothingScene
{
};

TEST_F(skinSmooth, saysWhyItDoesNothing)
{
    smooth(0.5, 2);
    EXPECT_EQ(takeInfos(), kNoWeightListYet);
    makeStrip("body");
    makeStrip("other");
    load("body other");
    const struct {
        int top, bottom;
        const char *error;
    } cases[] = {{8, 10, kSeveralSkinClusters}, {9, 9, kNoVertexToSmooth}};
    const std::string items = undoItems();
    takeErrors();
    for (const auto &c : cases) {
        selectCells(c.top, 0, c.bottom, 0);
        smooth(0.5, 2);
        EXPECT_EQ(takeErrors(), c.error);
    }
    EXPECT_EQ(undoItems(), items);
    EXPECT_EQ(allWeights() + allWeights("other"), std::string(kPeak) + kPeak);
    mel("delete body");
    takeErrors();
    selectCells(1, 0, 1, 0);
    smooth(0.5, 2);
    EXPECT_EQ(takeErrors(), kNoShapeToSmooth);
    selectCells(-1, -1, -1, -1);
    smooth(0.5, 2);
    EXPECT_EQ(takeErrors(), kNoShapeToSmooth) << "the other shape is smoothed";
    EXPECT_EQ(allWeights("other"), kFlat);
}

TEST_F(skinSmooth, smoothsEachSkinClusterInAStepOfItsOwn)
{
    makeStrip("body");
    makeStrip("other");
    load("body other");
    takeCommands();
    smooth(0.5, 3);
    EXPECT_EQ(takeCommands(), "korvexCmd -smoothSkinWeights\n"
                              "skinCluster -e -sw 0.5 -swi 3 -omi 1 bodySkin;\n"
                              "korvexCmd -smoothSkinWeights\n"
                              "skinCluster -e -sw 0.5 -swi 3 -omi 1 otherSkin;");
    EXPECT_EQ(allWeights() + allWeights("other"), std::string(kFlat) + kFlat);
    EXPECT_EQ(shown(2) + ", " + shown(11), "1.000 0.000 0.000, 1.000 0.000 0.000");
    mel("undo");
    EXPECT_EQ(allWeights() + allWeights("other"), std::string(kFlat) + kPeak);
    EXPECT_EQ(shown(2) + ", " + shown(11), "1.000 0.000 0.000, 0.000 1.000 0.000");
    mel("undo");
    EXPECT_EQ(allWeights() + allWeights("other"), std::string(kPeak) + kPeak);
    mel("redo; redo");
    EXPECT_EQ(allWeights() + allWeights("other"), std::string(kFlat) + kFlat);
}

TEST_F(skinSmooth, smoothsASkinClusterOnceWhoseShapeIsLoadedTwice)
{
    makeStrip("body");
    load("body.vtx[0:1] body");
    mel("select -cl");
    takeCommands();
    smooth(0.5, 1);
    EXPECT_EQ(takeCommands(), "korvexCmd -smoothSkinWeights\n"
                              "skinCluster -e -sw 0.5 -swi 1 -omi 1 bodySkin;");
}

TEST_F(skinSmooth, smoothsTheSelectedRowsAlone)
{
    makeStrip("body");
    mel("skinPercent -tv knee 1 bodySkin body.vtx[7]");
    load("body");
    selectCells(6, 0, 8, 1);
    takeCommands();
    smooth(0.5, 1);
    EXPECT_EQ(takeCommands(), "korvexCmd -smoothSkinWeights\n"
                              "select -r bodyShape.vtx[5] bodyShape.vtx[6] bodyShape.vtx[7] ;"
                              "skinCluster -e -sw 0.5 -swi 1 -omi 1 bodySkin;");
    EXPECT_EQ(allWeights(), kPeak);
    mel("undo");
    EXPECT_EQ(weights(7), "0 1 0");
    mel("redo");
    EXPECT_EQ(allWeights(), kPeak);
}

TEST_F(bothSmoothings, leaveTheUserWhatIsInHandAndTheTableItsRows)
{
    makeStrip("body");
    load("body");
    const std::function<void(double)> operations[] = {
        [this](double tolerance) { smooth(tolerance, 1); },
        [this](double opacity) { paint(opacity); }};
    const struct {
        const char *hands;
        double amount; // more than 1 is refused
        const char *error;
    } cases[] = {
        {"select -cl; setToolTo moveSuperContext; selectType -ocm -alc 1", 0.5, ""},
        {"select -r hip; setToolTo selectSuperContext; selectType -ocm -alc 0", 0.5, ""},
        {"select -r body.vtx[3]; selectType -ocm -vertex 1", 0.5, ""},
        {"select -r body; hilite -u body; ArtPaintSkinWeightsTool", 0.5, ""},
        {"select -r knee; setToolTo moveSuperContext; selectType -ocm -alc 0", 2, "out of range"},
        {"select -r body.vtx[3]; selectType -ocm -alc 1", 2, "out of range"},
    };
    for (const auto &operate : operations) {
        for (const auto &c : cases) {
            call("setAutoUpdate", false);
            mel(c.hands);
            call("setAutoUpdate", true);
            selectCells(2, 0, 2, 0);
            const std::string hands = handsOfTheUser();
            const auto expectUntouched = [&](const std::string &when) {
                const QModelIndexList selected = view_->selectionModel()->selectedIndexes();
                EXPECT_EQ(handsOfTheUser(), hands) << c.hands << when;
                EXPECT_EQ(model_->rowCount(), 9) << c.hands << when;
                EXPECT_EQ(selected, QModelIndexList{model_->index(2, 0)}) << c.hands << when;
            };
            takeErrors();
            operate(c.amount);
            EXPECT_NE(takeErrors().find(c.error), std::string::npos) << c.hands;
            expectUntouched(", done");
            EXPECT_EQ(allWeights() == kPeak, c.amount > 1) << c.hands;
            if (c.amount > 1)
                continue;
            mel("undo");
            expectUntouched(", undone");
            EXPECT_EQ(allWeights(), kPeak);
            mel("redo");
            expectUntouched(", redone");
            mel("undo");
        }
    }
    mel("select -r body.vtx[0:1]");
    EXPECT_EQ(model_->rowCount(), 3) << "the table still follows";
}

TEST_F(skinSmooth, bringsBackVerticesThatAreNotLoaded)
{
    makeStrip("body");
    mel("skinPercent -tv ankle 1 bodySkin body.vtx[6]");
    const std::string before = allWeights();
    load("body.vtx[0:2]");
    mel("select -cl");
    smooth(0.9, 1);
    EXPECT_EQ(allWeights(), kFlat);
    mel("undo");
    EXPECT_EQ(allWeights(), before);
}

TEST_F(skinSmooth, leavesTheMaximumMaintainedUntilItIsUndone)
{
    makeSkin("body", {"hip", "knee", "ankle"},
             {{0.5, 0.3, 0.2}, {0, 0, 1}, {0.6, 0.4, 0}, {0.5, 0.3, 0.2}});
    mel("setAttr bodySkin.maxInfluences 2");
    load("body");
    const std::string before = allWeights();
    smooth(0.5, 1);
    EXPECT_EQ(weights(1), "0.625 0.375 0");
    EXPECT_EQ(melString("getAttr bodySkin.mmi"), "1");
    mel("undo");
    EXPECT_EQ(allWeights(), before);
    EXPECT_EQ(melString("getAttr bodySkin.mmi"), "0");
    mel("redo");
    EXPECT_EQ(weights(1), "0.625 0.375 0");
    EXPECT_EQ(melString("getAttr bodySkin.mmi"), "1");
    mel("undo; setAttr bodySkin.mmi 1");
    smooth(0.5, 1);
    mel("undo");
    EXPECT_EQ(melString("getAttr bodySkin.mmi"), "1") << "as the user had it";
}

TEST_F(skinSmooth, comesBackWhereNothingCanBeNormalized)
{
    makeStrip("body");
    load("body");
    mel("setAttr bodySkin.nw 0; setAttr -lock 1 bodySkin.nw; setAttr bodySkin.wl[5].w[0] 0.5");
    const std::string before = allWeights();
    smooth(0.5, 1);
    EXPECT_NE(allWeights(), before);
    mel("undo");
    EXPECT_EQ(allWeights(), before);
    selectCells(2, 1, 2, 1);
    paint(0.5);
    EXPECT_NE(allWeights(), before);
    mel("undo");
    EXPECT_EQ(allWeights(), before);
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(skinSmooth, leavesEverythingAsItWasWhenMayaRefuses)
{
    makeStrip("body");
    load("body");
    const std::string items = undoItems();
    takeErrors();
    selectCells(2, 0, 2, 0);
    smooth(1.5, 1);
    EXPECT_EQ(undoItems(), items);
    EXPECT_EQ(allWeights(), kPeak);
    EXPECT_EQ(melString("getAttr bodySkin.mmi"), "0");
    EXPECT_EQ(shown(2), "0.000 1.000 0.000");
}

TEST_F(skinSmooth, holdsLockedJointsAndRoundsWhatItReads)
{
    makeSkin("body", {"hip", "knee", "ankle"},
             {{0.7, 0.3, 0}, {0, 0.667, 0.333}, {0.4, 0.6, 0}, {0.5, 0.5, 0}});
    load("body");
    lockColumn(2);
    selectRow(2);
    smooth(0.5, 1);
    EXPECT_EQ(weights(1), "0.4002 0.2668 0.333");
    EXPECT_EQ(shown(2), "0.400 0.267 0.333");
}

TEST_F(skinSmooth, tellsShapesOfOneNameApart)
{
    makeStrip("body");
    makeStrip("other");
    mel("group -n left body; group -n right other; rename other body;"
        "select -cl");
    ASSERT_EQ(melStrings("ls bodyShape"), "left|body|bodyShape right|body|bodyShape");
    load("|left|body");
    selectCells(2, 0, 2, 0);
    takeErrors();
    takeCommands();
    smooth(0.5, 1);
    EXPECT_EQ(takeErrors(), "");
    EXPECT_EQ(takeCommands(), "korvexCmd -smoothSkinWeights\n"
                              "select -r left|body|bodyShape.vtx[1] ;"
                              "skinCluster -e -sw 0.5 -swi 1 -omi 1 bodySkin;");
    EXPECT_EQ(shown(2), "1.000 0.000 0.000");
}

TEST_F(skinSmooth, needsACommandToRun)
{
    makeStrip("body");
    load("body");
    const std::string items = undoItems();
    EXPECT_EQ(melError("korvexCmd -smoothSkinWeights"), kSmoothingNotSetUp);
    smooth(0.5, 1);
    mel("undo");
    load("body.vtx[0]");
    EXPECT_EQ(melError("korvexCmd -smoothSkinWeights"), kSmoothingNotSetUp)
        << "what was prepared was meant for another table";
    EXPECT_EQ(allWeights(), kPeak);
}
