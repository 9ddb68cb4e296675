// SPDX-License-Identifier: Apache-2.0
//
// The number of decimal places: in the table alone, and written into the skin clusters.

#include <QSignalSpy>

#include "locks/lockScene.h"
#include "model/messages.h"

class precision : public LockScene
{
protected:
    void loadThirds()
    {
        makeSkin("body", {"hip", "knee", "ankle"},
                 {{0.333333, 0.333333, 0.333334}, {0.125, 0.125, 0.75}, {1, 0, 0}, {0.7, 0.3, 0}});
        load("body");
        takeErrors();
    }
    void expectRounded()
    {
        const std::vector<double> found = exactWeights(0);
        ASSERT_EQ(found.size(), 3u);
        EXPECT_NEAR(found[0], 0.33, 1e-15);
        EXPECT_NEAR(found[1], 0.33, 1e-15);
        EXPECT_NEAR(found[2], 0.34, 1e-15);
    }
};

TEST_F(precision, roundsTheTableAnewFromAllDigits)
{
    loadThirds();
    const std::string before = picture();
    QSignalSpy layoutChanged(model_, SIGNAL(layoutChanged()));
    call("setPrecision", 2);
    EXPECT_EQ(picture(), "          | hip  | knee | ankle\n"
                         "bodyShape |      |      |\n"
                         "vtx[0]    | 0.33 | 0.33 | 0.34\n"
                         "vtx[1]    | 0.13 | 0.13 | 0.74\n"
                         "vtx[2]    | 1.00 | 0.00 | 0.00\n"
                         "vtx[3]    | 0.70 | 0.30 | 0.00\n");
    EXPECT_EQ(layoutChanged.count(), 1);
    call("setPrecision", 3);
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(exactWeights(0), (std::vector<double>{0.333333, 0.333333, 0.333334}));
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(precision, isRefusedWithoutAChange)
{
    call("setPrecision", 2);
    EXPECT_EQ(takeErrors(), kNoWeightList);
    call("cacheUnroundedWeights");
    EXPECT_EQ(takeErrors(), kNothingToCache);

    loadThirds();
    const std::string before = picture();
    for (const int places : {0, -3}) {
        call("setPrecision", places);
        EXPECT_EQ(takeErrors(), kInvalidPrecision);
    }
    const struct {
        int top, left, bottom, right;
    } locks[] = {{2, 1, 2, 1}, {2, 0, 2, 2}, {0, 1, 4, 1}};
    for (const auto &cells : locks) {
        selectCells(cells.top, cells.left, cells.bottom, cells.right);
        call("newLockSelected");
        call("setPrecision", 2);
        EXPECT_EQ(takeErrors(), kPrecisionWhileLocked);
        call("newUnlockAll");
    }
    EXPECT_EQ(picture(), before);
}

TEST_F(precision, leavesARowWithoutWeightAndTheViewUntold)
{
    makeSkin("body", {"hip", "knee"}, {{0.333, 0.667}, {0, 0}, {0.125, 0.875}, {1, 0}});
    load("body");
    takeErrors();
    QSignalSpy layoutChanged(model_, SIGNAL(layoutChanged()));
    call("setPrecision", 2);
    EXPECT_EQ(takeErrors(), kRowWithoutWeight);
    EXPECT_EQ(layoutChanged.count(), 0);
    EXPECT_EQ(picture(), "          | hip  | knee\n"
                         "bodyShape |      |\n"
                         "vtx[0]    | 0.33 | 0.67\n"
                         "vtx[1]    | 0.00 | 0.00\n"
                         "vtx[2]    | 0.13 | 0.88\n"
                         "vtx[3]    | 1.00 | 0.00\n");
}

TEST_F(precision, isTakenBackWithTheDigitsThatWereShown)
{
    loadThirds();
    const std::string before = picture();
    call("saveUndoCopy");
    call("cacheUnroundedWeights");
    call("setPrecision", 1);
    const std::string rounded = picture();
    QSignalSpy changed(model_, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    call("restoreUndoCopy");
    call("undoPrecision");
    EXPECT_EQ(picture(), before);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), model_->index(0, 0));
    EXPECT_EQ(changed[0][1].toModelIndex(), model_->index(4, 2));

    call("restorePreviousWeights");
    call("undoPrecision"); // to the precision before, still the same
    call("restorePreviousWeights");
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(precision, restoresNoCopyOfAnotherTable)
{
    call("restoreUndoCopy");
    EXPECT_EQ(takeErrors(), "") << "an empty table";
    loadThirds();
    call("saveUndoCopy");
    load("body.vtx[1]");
    call("restoreUndoCopy");
    EXPECT_EQ(takeErrors(), kNothingToUndo);
    EXPECT_EQ(rowNames(), "bodyShape vtx[1]");
}

TEST_F(precision, comesBackWithTheTableBeforeTheLoad)
{
    loadThirds();
    on("2:1", "newLockSelected");
    load("body.vtx[1]");
    EXPECT_EQ(locked(), "... .#.");
    call("undoLoad");
    EXPECT_EQ(rowNames(), "bodyShape vtx[0] vtx[1] vtx[2] vtx[3]");
    EXPECT_EQ(locked(), "... ... .#. ... ...");
    call("undoLoad");
    EXPECT_EQ(rowNames(), "bodyShape vtx[1]");
}

TEST_F(precision, isWrittenAndTakenBackToTheLastDigit)
{
    loadThirds();
    const std::vector<double> before = exactWeights(0);
    call("setPrecision", 2);
    call("applyPrecision");
    expectRounded();
    call("undoApplyPrecision");
    EXPECT_EQ(exactWeights(0), before);
    EXPECT_EQ(exactWeights(3), (std::vector<double>{0.7, 0.3, 0}));
    call("redoApplyPrecision");
    expectRounded();
    mel("undo");
    EXPECT_EQ(exactWeights(0), before);
    EXPECT_EQ(takeErrors() + takeWarnings(), "");
}

TEST_F(precision, warnsOnceOfWeightsThatAreNone)
{
    makeSkin("body", {"hip", "knee"}, {{0.9, 0.6}, {1, 0}, {1.25, 0.3}, {1, 0}});
    load("body");
    call("setPrecision", 2);
    EXPECT_EQ(takeWarnings(), "");
    call("applyPrecision");
    std::string expected = kWeightsOutOfRange;
    expected.replace(expected.find("^1s"), 3, "1");
    const std::string warnings = takeWarnings(); // Maya may add its own
    EXPECT_EQ(warnings.compare(0, expected.size(), expected), 0) << warnings;
    EXPECT_EQ(warnings.find(expected, 1), std::string::npos) << warnings;
}

TEST_F(precision, stopsWritingBackAtAJointThatTheSkinClusterLost)
{
    loadThirds();
    call("setPrecision", 2);
    call("applyPrecision");
    mel("skinCluster -e -ri ankle bodySkin");
    takeErrors();
    call("undoApplyPrecision");
    EXPECT_EQ(takeInfos(), kArraysDiffer);
}
