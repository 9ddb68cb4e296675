// SPDX-License-Identifier: Apache-2.0
//
// The command classes of the editor's operations, each executed by itself: no plug-in is loaded, so
// that an operation of the table only leaves its edit behind.

#include <QTableView>

#include "commands/applyButtonCmd.h"
#include "commands/setCellDataCmd.h"
#include "edit/preparedScene.h"
#include "model/messages.h"

class operationCommand : public PreparedScene
{
protected:
    operationCommand()
    {
        makeSkin("body", {"hip", "knee", "ankle"},
                 {{.5, .3, .2}, {.25, .25, .5}, {.3334, .3333, .3333}, {1, 0, 0}});
        model_.setView(&view_);
        view_.setModel(&model_);
        load("body");
    }

    QTableView view_;
};

TEST_F(operationCommand, limitsOnlyCellsOfItsTable)
{
    const std::string before = allWeights();
    model_.setMaxValue(1);
    model_.applyMaxInfluence();
    applyButtonCmd whole(nullptr, &model_);
    EXPECT_TRUE(whole.doIt(MArgList()));
    EXPECT_EQ(allWeights(), "1 0 0; 0 0 1; 0 0 1; 1 0 0");
    EXPECT_TRUE(whole.undoIt());

    load("body.vtx[0:1]"); // rows 1 and 2: no more row for the third vertex
    EXPECT_TRUE(whole.redoIt());
    EXPECT_EQ(allWeights(), "1 0 0; 0 0 1; 0.3334 0.3333 0.3333; 1 0 0");
    EXPECT_EQ(takeInfos(), std::string(kNoModelIndex) + "\n" + kNoModelIndex) << "both cells";
    EXPECT_TRUE(whole.undoIt());
    EXPECT_EQ(allWeights(), before);

    applyButtonCmd withoutTable(nullptr, nullptr);
    EXPECT_TRUE(whole.redoIt());
    EXPECT_EQ(allWeights(), before) << "all of a class serve the latest one's table";
    EXPECT_FALSE(withoutTable.doIt(MArgList()));
    EXPECT_NE(takeInfos().find(kDataNotSetUp), std::string::npos);
}

TEST_F(operationCommand, hasNothingToTakeBackBeforeItWrote)
{
    setCellDataCmd command(nullptr, &model_);
    EXPECT_FALSE(command.undoIt());
    EXPECT_TRUE(command.redoIt());
    EXPECT_FALSE(command.doIt(MArgList())) << "nobody has typed";
    EXPECT_EQ(takeInfos(), kDataNotSetUp);
}
