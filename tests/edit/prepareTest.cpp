// SPDX-License-Identifier: Apache-2.0
//
// What preparers refuse.

#include <functional>

#include "edit/preparedScene.h"
#include "model/messages.h"

class prepareEdit : public PreparedScene
{
protected:
    prepareEdit()
    {
        makeSkin("body", {"hip", "knee"}, {{.5, .5}, {.5, .5}, {.5, .5}, {.5, .5}});
        load("body");
    }
};

TEST_F(prepareEdit, tellsWhatDoesNotFit)
{
    const auto cell = [](int row, int column) {
        return [row, column](editHandOver &handOver) {
            handOver.pendingCells.append({row, column});
            handOver.pendingValues.append(0.5);
        };
    };
    const auto row = [](int number) {
        return [number](editHandOver &handOver) { handOver.maxInfluenceRows = {number}; };
    };
    const auto flood = [](int shape, int column) {
        return [shape, column](editHandOver &handOver) {
            handOver.floodShapes = {shape};
            handOver.operationColumn = column;
        };
    };
    const struct {
        const char *what;
        editPreparer preparer;
        std::function<void(editHandOver &)> fill;
        preparation outcome;
        const char *info, *error;
    } cases[] = {
        {"a cell", prepareCells, cell(1, 1), preparation::ready, "", ""},
        {"a row below 0", prepareCells, cell(-1, 0), preparation::failed, kNoRowNumber, ""},
        {"a shape row", prepareCells, cell(0, 0), preparation::failed, kNoEditableCell, ""},
        {"no column", prepareCells, cell(1, 2), preparation::failed, kNoJointIndex, ""},
        {"a column below 0", prepareCells, cell(1, -1), preparation::failed, kNoJointIndex, ""},
        {"no such row", prepareCells, cell(5, 0), preparation::outdated, "", ""},
        {"rows", prepareMaxInfluences, row(2), preparation::ready, "", ""},
        {"a shape row", prepareMaxInfluences, row(0), preparation::failed, "", kNoShapeIndex},
        {"no such row", prepareMaxInfluences, row(5), preparation::outdated, "", ""},
        {"a shape", prepareFlood, flood(0, 1), preparation::ready, "", ""},
        {"no column", prepareFlood, flood(0, 2), preparation::failed, kNoJointIndex, ""},
        {"no shape", prepareFlood, flood(1, 0), preparation::outdated, "", ""},
        {"no rows", prepareRounding, [](editHandOver &) {}, preparation::outdated, "", ""},
    };
    for (const auto &c : cases) {
        handOver_ = editHandOver();
        c.fill(handOver_);
        EXPECT_EQ(prepare(c.preparer), c.outcome) << c.what;
        EXPECT_EQ(takeInfos(), c.info) << c.what;
        EXPECT_EQ(takeErrors(), c.error) << c.what;
    }
    EXPECT_EQ(allWeights(), "0.5 0.5; 0.5 0.5; 0.5 0.5; 0.5 0.5");
}

// Joints of one name are common: a left and a right hand.
TEST_F(prepareEdit, tellsJointsOfOneNameApart)
{
    mel("createNode transform -n left; createNode transform -n right;"
        "createNode joint -n hand -p left; createNode joint -n hand -p right");
    makeSkin("glove", {"|left|hand", "|right|hand"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    load("glove");
    handOver_.floodShapes = {0};
    handOver_.operationColumn = 1;
    handOver_.floodValue = 0.25;
    ASSERT_EQ(prepare(prepareFlood), preparation::ready);
    EXPECT_TRUE(writeFlood(edit_));
    EXPECT_EQ(allWeights("glove"), "0.75 0.25; 0.75 0.25; 0.75 0.25; 0.75 0.25");
}

TEST_F(prepareEdit, writesNothingWhenItFails)
{
    handOver_.pendingCells = {{1, 0}, {0, 0}, {2, 0}};
    handOver_.pendingValues = {0.1, 0.2, 0.3};
    EXPECT_EQ(prepare(prepareCells), preparation::failed);
    EXPECT_EQ(takeInfos(), kNoEditableCell);
    EXPECT_FALSE(replayDisplaced(edit_));
    EXPECT_EQ(allWeights(), "0.5 0.5; 0.5 0.5; 0.5 0.5; 0.5 0.5");
}

// Vertices go into one write, which warns once; the cells of a row keep their order.
TEST_F(prepareEdit, writesTheCellsOfAColumnTogether)
{
    const struct {
        const char *what;
        QVector<cellIndex> cells;
        QVector<double> values;
        int writes;
        const char *weights;
    } cases[] = {
        {"a column", {{3, 0}, {1, 0}, {2, 0}}, {.2, .2, .2}, 1, "0.2 0.8; 0.2 0.8; 0.2 0.8"},
        {"a column of two values",
         {{3, 0}, {1, 0}, {2, 0}},
         {.2, .3, .4},
         1,
         "0.3 0.7; 0.4 0.6; 0.2 0.8"},
        {"row by row",
         {{1, 0}, {1, 1}, {2, 0}, {2, 1}},
         {.2, .3, .2, .3},
         2,
         "0.7 0.3; 0.7 0.3; 0.5 0.5"},
        {"both ways",
         {{1, 0}, {1, 1}, {2, 1}, {2, 0}},
         {.2, .3, .3, .2},
         4,
         "0.7 0.3; 0.2 0.8; 0.5 0.5"},
        {"a cell twice", {{1, 0}, {1, 0}}, {.2, .3}, 2, "0.3 0.7; 0.5 0.5; 0.5 0.5"},
    };
    for (const auto &c : cases) {
        handOver_.pendingCells = c.cells;
        handOver_.pendingValues = c.values;
        ASSERT_EQ(prepare(prepareCells), preparation::ready);
        EXPECT_EQ(edit_.writes.size(), c.writes) << c.what;
        EXPECT_TRUE(writeCells(edit_));
        EXPECT_EQ(allWeights(), std::string(c.weights) + "; 0.5 0.5") << c.what;
        mel("select -r body.vtx[*]; skinPercent -tv hip 0.5 bodySkin; select -cl");
    }
}
