// SPDX-License-Identifier: Apache-2.0
//
// Typing into cells of the table.

#include <QColor>

#include "model/messages.h"
#include "support/editScene.h"

class editCells : public EditScene
{
protected:
    editCells() { loadBody(); }
};

TEST_F(editCells, writesWhatIsTypedAndUndoTakesItBack)
{
    const struct {
        const char *text, *weights;
    } cases[] = {
        {"1", "1 0 0"},           {"0", "0 0.6 0.4"},
        {"0.8", "0.8 0.12 0.08"}, {"+=0.1", "0.6 0.24 0.16"},
        {"-=2", "0 0.6 0.4"},     {"*=0.5", "0.25 0.45 0.3"},
        {"/=0", "1 0 0"},         {"=5", "0 0.6 0.4"},
        {"0.=5", "0 0.6 0.4"},
    };
    for (const auto &c : cases) {
        EXPECT_TRUE(type(1, 0, c.text)) << c.text;
        EXPECT_EQ(weights(0), c.weights) << c.text;
        mel("undo");
        EXPECT_EQ(weights(0), "0.5 0.3 0.2") << c.text;
        EXPECT_EQ(shown(1), "0.500 0.300 0.200") << c.text;
        mel("redo");
        EXPECT_EQ(weights(0), c.weights) << c.text;
        mel("undo");
    }
    EXPECT_EQ(weights(1), "0.25 0.25 0.5");
    EXPECT_TRUE(type(4, 1, "/=0"));
    EXPECT_EQ(weights(3), "1 0 0") << "0.0 divided by 0 is 0.0";
    EXPECT_EQ(takeErrors() + takeInfos(), "");
}

TEST_F(editCells, changesNothingForAValueOutOfRange)
{
    const std::string before = picture();
    const std::string items = undoItems();
    for (const char *text : {"1.0001", "-0.5", "nan", "1e400", "%=0.2"}) {
        EXPECT_FALSE(type(1, 0, text)) << text;
        EXPECT_EQ(takeErrors(), kValueOutOfRange) << text;
    }
    EXPECT_FALSE(model_->setData(QModelIndex(), "0.5"));
    EXPECT_TRUE(model_->setData(model_->index(1, 0), "0.7", Qt::DisplayRole));
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    EXPECT_EQ(undoItems(), items);
}

TEST_F(editCells, givesEachSelectedCellItsOwnResult)
{
    const int items = std::stoi(undoItems());
    selectColumn(1); // the shape row's empty cell too
    EXPECT_TRUE(typeIntoSelection(2, 1, "+=0.1"));
    EXPECT_EQ(picture(), "          | hip   | knee  | ankle\n"
                         "bodyShape |       |       |\n"
                         "vtx[0]    | 0.429 | 0.400 | 0.171\n"
                         "vtx[1]    | 0.217 | 0.350 | 0.433\n"
                         "vtx[2]    | 0.284 | 0.433 | 0.283\n"
                         "vtx[3]    | 0.900 | 0.100 | 0.000\n");
    EXPECT_EQ(std::stoi(undoItems()), items + 1);
    mel("undo");
    EXPECT_EQ(weights(3), "1 0 0");
    EXPECT_EQ(weights(2), "0.334 0.333 0.333");
}

TEST_F(editCells, roundsTheRowForTheFirstFreeWeightAndAfterRedoForTheLast)
{
    EXPECT_TRUE(type(3, 0, "0.335"));
    EXPECT_EQ(shown(3), "0.335 0.332 0.333");
    mel("undo; redo");
    EXPECT_EQ(shown(3), "0.335 0.333 0.332");
    EXPECT_TRUE(type(3, 1, "0.3325"));
    EXPECT_EQ(shown(3), "0.334 0.333 0.333") << "the edited one keeps its own";
    EXPECT_TRUE(type(1, 0, "0.5"));
    EXPECT_EQ(shown(3), "0.335 0.333 0.332") << "as a reload leaves it";
}

TEST_F(editCells, reportsASelectionThatShowsNothing)
{
    const std::string items = undoItems();
    EXPECT_TRUE(type(0, 1, "0.5"));
    EXPECT_EQ(takeInfos(), kDataNotSetUp);
    view_->clearSelection();
    EXPECT_TRUE(typeIntoSelection(1, 0, "0.5"));
    EXPECT_EQ(takeInfos(), kDataNotSetUp);
    EXPECT_EQ(takeErrors(), "");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    EXPECT_EQ(undoItems(), items);
}

TEST_F(editCells, leavesEmptyCellsOfOtherShapesAlone)
{
    makeSkin("hat", {"head", "knee"}, {{0.5, 0.5}, {0.5, 0.5}, {1, 0}, {1, 0}});
    load("body hat");
    selectCells(1, 0, 7, 0); // hip: no influence of the hat
    EXPECT_TRUE(typeIntoSelection(1, 0, "0.25"));
    EXPECT_EQ(weights(0), "0.25 0.45 0.3");
    EXPECT_EQ(weights(1, "hat"), "0.5 0.5");
    EXPECT_EQ(shown(7), " 0.500  0.500");
    EXPECT_TRUE(type(7, 3, "+=0.1"));
    EXPECT_EQ(weights(1, "hat"), "0.6 0.4") << "head is the hat's first and the table's last joint";
}

TEST_F(editCells, movesWeightAmongUnlockedCellsOnly)
{
    lockCell(1, 1);
    EXPECT_TRUE(type(1, 0, "0.2"));
    EXPECT_EQ(weights(0), "0.2 0.3 0.5");
    EXPECT_TRUE(type(1, 0, "0.9"));
    EXPECT_EQ(weights(0), "0.7 0.3 0") << "no more than the locked cell leaves";
    EXPECT_EQ(shown(1), "0.700 0.300 0.000");
    EXPECT_TRUE(type(1, 1, "0.5")) << "the locked cell itself";
    EXPECT_EQ(weights(0), "0.5 0.5 0");
    EXPECT_TRUE(type(2, 0, "0.5"));
    EXPECT_EQ(weights(1), "0.5 0.166667 0.333333") << "another row's lock";
    mel("undo; undo; undo; undo");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
}

TEST_F(editCells, endsWithTheHeldJointsFree)
{
    lockCell(1, 1);
    mel("setAttr knee.lockInfluenceWeights 1; setAttr ankle.lockInfluenceWeights 1");
    EXPECT_TRUE(type(1, 0, "0.4"));
    EXPECT_EQ(melString("getAttr knee.lockInfluenceWeights"), "0");
    EXPECT_EQ(melString("getAttr ankle.lockInfluenceWeights"), "1") << "not ours";
    EXPECT_EQ(weights(0), "0.5 0.3 0.2") << "both were held meanwhile";
    mel("undo");
    EXPECT_EQ(melString("getAttr knee.lockInfluenceWeights"), "0") << "never on the undo queue";
}

TEST_F(editCells, tellsWhenNoCellOfARowMayTakeTheRounding)
{
    lockCell(1, 1);
    lockCell(1, 2);
    EXPECT_TRUE(type(1, 0, "0.5"));
    EXPECT_EQ(takeErrors(), kNoCellToDeductFrom);
    EXPECT_TRUE(type(4, 0, "1"));
    EXPECT_EQ(takeErrors(), "") << "a single weight has nothing to give";
}

TEST_F(editCells, hidesAndShowsColumnsAsTheWeightsGo)
{
    call("toggleFilter", true);
    EXPECT_EQ(hiddenColumns(), "");
    selectColumn(0);
    EXPECT_TRUE(typeIntoSelection(1, 0, "1"));
    EXPECT_EQ(hiddenColumns(), "knee ankle");
    mel("undo");
    EXPECT_EQ(hiddenColumns(), "");
}

TEST_F(editCells, marksShapesAndRowsThatAreNotNormalized)
{
    mel("setAttr bodySkin.normalizeWeights 2");
    EXPECT_TRUE(type(4, 1, "0.5"));
    const auto isRed = [this](int row) {
        return model_->headerData(row, Qt::Vertical, Qt::BackgroundRole).value<QColor>() ==
               QColor(Qt::red);
    };
    EXPECT_TRUE(isRed(0));
    mel("undo");
    EXPECT_FALSE(isRed(0));
    mel("redo");
    EXPECT_TRUE(isRed(0));
    EXPECT_TRUE(isRed(4));
}

// Two cells of one row are typed into at once: undo stops between the two writes.
class undoReplay : public editCells
{
};

TEST_F(undoReplay, endsBetweenTwoWritesToOneVertex)
{
    selectCells(1, 0, 1, 1);
    EXPECT_TRUE(typeIntoSelection(1, 0, "0.4"));
    EXPECT_EQ(weights(0), "0.375 0.4 0.225");
    mel("undo");
    EXPECT_EQ(weights(0), "0.4 0.36 0.24") << "hip's write still applied";
    mel("redo");
    EXPECT_EQ(weights(0), "0.375 0.4 0.225");
    mel("undo");
    EXPECT_EQ(weights(0), "0.4 0.36 0.24");
}
