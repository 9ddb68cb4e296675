// SPDX-License-Identifier: Apache-2.0
//
// The command classes of the editor's operations, each executed by itself: no plug-in is loaded, so
// that an operation of the table only leaves its edit behind.

#include <functional>
#include <memory>

#include <QTableView>

#include "commands/applyButtonCmd.h"
#include "commands/dragSliderCmd.h"
#include "commands/dragSliderColCmd.h"
#include "commands/replaceButtonCmd.h"
#include "commands/roundButtonCmd.h"
#include "commands/setCellDataCmd.h"
#include "commands/smoothCmd.h"
#include "edit/preparedScene.h"
#include "model/messages.h"
#include "plugin/processState.h"

namespace
{

const char kBody[] = "0.5 0.3 0.2; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0";

template <typename Operation>
std::unique_ptr<MPxCommand> make(weightTableModel *model)
{
    return std::unique_ptr<MPxCommand>(new Operation(nullptr, model));
}

} // namespace

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

    void select(int top, int left, int bottom, int right)
    {
        view_.selectionModel()->select(
            QItemSelection(model_.index(top, left), model_.index(bottom, right)),
            QItemSelectionModel::ClearAndSelect);
    }
    void limitTo(int maximum)
    {
        view_.clearSelection();
        model_.setMaxValue(maximum);
        model_.applyMaxInfluence();
    }

    QTableView view_;
};

TEST_F(operationCommand, writesTakesBackAndWritesAgain)
{
    const struct {
        const char *name;
        std::unique_ptr<MPxCommand> (*make)(weightTableModel *model);
        std::function<void()> operate;
        const char *written;
    } cases[] = {
        {"replaceButtonCmd", make<replaceButtonCmd>,
         [this] {
             select(0, 1, 4, 1);
             model_.replaceValue(1);
         },
         "0 1 0; 0 1 0; 0 1 0; 0 1 0"},
        {"roundButtonCmd", make<roundButtonCmd>, [this] { model_.applyPrecision(); },
         "0.5 0.3 0.2; 0.25 0.25 0.5; 0.333 0.333 0.334; 1 0 0"},
        {"applyButtonCmd", make<applyButtonCmd>, [this] { limitTo(2); },
         "0.625 0.375 0; 0 0.3333 0.6667; 0 0.5 0.5; 1 0 0"},
        {"dragSliderCmd", make<dragSliderCmd>,
         [this] {
             select(1, 0, 2, 0);
             model_.dragSlider(0.75, true);
         },
         "0.75 0.15 0.1; 0.75 0.08333 0.1667; 0.3334 0.3333 0.3333; 1 0 0"},
        {"dragSliderColCmd", make<dragSliderColCmd>,
         [this] {
             select(0, 2, 4, 2);
             model_.dragSlider(0, true);
         },
         "0.625 0.375 0; 0.5 0.5 0; 0.5001 0.4999 0; 1 0 0"},
        {"setCellDataCmd", make<setCellDataCmd>,
         [this] {
             select(1, 1, 1, 1);
             model_.setData(model_.index(1, 1), "0");
         },
         "0.7143 0 0.2857; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0"},
        {"smoothCmd", make<smoothCmd>,
         [this] {
             select(1, 0, 1, 0);
             model_.applySkinPaintSmooth(1);
         },
         "0.2917 0.425 0.2833; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0"},
    };
    for (const auto &c : cases) {
        autoUpdate = true;
        c.operate();
        const auto command = c.make(&model_);
        EXPECT_EQ(weights("body"), kBody) << c.name;
        EXPECT_TRUE(command->doIt(MArgList())) << c.name;
        EXPECT_EQ(weights("body"), c.written) << c.name;
        EXPECT_TRUE(command->undoIt()) << c.name;
        EXPECT_EQ(weights("body"), kBody) << c.name;
        EXPECT_EQ(model_.index(1, 0).data().toString(), "0.500") << c.name << ": the table follows";
        EXPECT_TRUE(command->redoIt()) << c.name;
        EXPECT_EQ(weights("body"), c.written) << c.name;
        EXPECT_TRUE(command->undoIt()) << c.name;
        EXPECT_TRUE(command->isUndoable()) << c.name;
        EXPECT_TRUE(autoUpdate) << c.name << ": put back";
        EXPECT_EQ(infos_.take(), "") << c.name;
    }
    autoUpdate = false;
}

TEST_F(operationCommand, limitsOnlyCellsOfItsTable)
{
    limitTo(1);
    applyButtonCmd whole(nullptr, &model_);
    EXPECT_TRUE(whole.doIt(MArgList()));
    const std::string limited = "1 0 0; 0 0 1; 0 0 1; 1 0 0";
    EXPECT_EQ(weights("body"), limited);
    EXPECT_TRUE(whole.undoIt());

    load("body.vtx[0:1]"); // rows 1 and 2: no more row for the third vertex
    EXPECT_TRUE(whole.redoIt());
    EXPECT_EQ(weights("body"), "1 0 0; 0 0 1; 0.3334 0.3333 0.3333; 1 0 0");
    EXPECT_EQ(infos_.take(), std::string(kNoModelIndex) + "\n" + kNoModelIndex) << "both cells";
    EXPECT_TRUE(whole.undoIt());
    EXPECT_EQ(weights("body"), kBody);

    applyButtonCmd withoutTable(nullptr, nullptr);
    EXPECT_TRUE(whole.redoIt());
    EXPECT_EQ(weights("body"), kBody) << "all of a class serve the latest one's table";
    EXPECT_FALSE(withoutTable.doIt(MArgList()));
    EXPECT_NE(infos_.take().find(kDataNotSetUp), std::string::npos);
}

TEST_F(operationCommand, hasNothingToTakeBackBeforeItWrote)
{
    setCellDataCmd command(nullptr, &model_);
    EXPECT_FALSE(command.undoIt());
    EXPECT_TRUE(command.redoIt());
    EXPECT_FALSE(command.doIt(MArgList())) << "nobody has typed";
    EXPECT_EQ(infos_.take(), kDataNotSetUp);
}
