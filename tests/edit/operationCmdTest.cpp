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
    void expectBody(const char *weights, const std::string &mode, const std::string &when) const
    {
        EXPECT_EQ(allWeights(), weights) << when;
        EXPECT_EQ(melString("getAttr bodySkin.nw"), mode) << when;
        EXPECT_TRUE(autoUpdate) << when;
    }

    QTableView view_;
};

TEST_F(operationCommand, writesTakesBackAndWritesAgain)
{
    const auto flood = [this] {
        select(0, 1, 4, 1);
        model_.replaceValue(1);
    };
    const auto limit = [this] {
        view_.clearSelection();
        model_.setMaxValue(2);
        model_.applyMaxInfluence();
    };
    const auto drag = [this] {
        select(1, 0, 2, 0);
        model_.dragSlider(0.75, true);
    };
    const auto dragColumn = [this] {
        select(0, 2, 4, 2);
        model_.dragSlider(0, true);
    };
    const auto typeZero = [this] {
        select(1, 1, 1, 1);
        model_.setData(model_.index(1, 1), "0");
    };
    const auto paint = [this] {
        select(1, 0, 1, 0);
        model_.applySkinPaintSmooth(1);
    };
    const struct {
        const char *name;
        std::unique_ptr<MPxCommand> (*make)(weightTableModel *model);
        const char *mode; // of normalization, which is switched on meanwhile where it is off
        std::function<void()> operate;
        const char *written;
    } cases[] = {
        {"replaceButtonCmd", make<replaceButtonCmd>, "0", flood, "0 1 0; 0 1 0; 0 1 0; 0 1 0"},
        {"replaceButtonCmd", make<replaceButtonCmd>, "2", flood,
         "0.5 1 0.2; 0.25 1 0.5; 0.3334 1 0.3333; 1 1 0"},
        {"roundButtonCmd", make<roundButtonCmd>, "1", [this] { model_.applyPrecision(); },
         "0.5 0.3 0.2; 0.25 0.25 0.5; 0.333 0.333 0.334; 1 0 0"},
        {"applyButtonCmd", make<applyButtonCmd>, "0", limit,
         "0.625 0.375 0; 0 0.333333 0.666667; 0 0.5 0.5; 1 0 0"},
        {"dragSliderCmd", make<dragSliderCmd>, "0", drag,
         "0.75 0.15 0.1; 0.75 0.0833333 0.166667; 0.3334 0.3333 0.3333; 1 0 0"},
        {"dragSliderColCmd", make<dragSliderColCmd>, "0", dragColumn,
         "0.625 0.375 0; 0.5 0.5 0; 0.500075 0.499925 0; 1 0 0"},
        {"setCellDataCmd", make<setCellDataCmd>, "0", typeZero,
         "0.714286 0 0.285714; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0"},
        {"setCellDataCmd", make<setCellDataCmd>, "2", typeZero,
         "0.5 0 0.2; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0"},
        {"smoothCmd", make<smoothCmd>, "1", paint,
         "0.2917 0.42498 0.28332; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0"},
    };
    autoUpdate = true;
    for (const auto &c : cases) {
        const std::string name = c.name;
        mel(std::string("setAttr bodySkin.nw ") + c.mode);
        c.operate();
        const auto command = c.make(&model_);
        EXPECT_TRUE(command->doIt(MArgList())) << name;
        expectBody(c.written, c.mode, name);
        EXPECT_TRUE(command->undoIt()) << name;
        expectBody(kBody, c.mode, name + ", undone");
        EXPECT_EQ(model_.index(1, 0).data().toString(), "0.500") << name << ": the table follows";
        EXPECT_TRUE(command->redoIt()) << name;
        expectBody(c.written, c.mode, name + ", redone");
        EXPECT_TRUE(command->undoIt() && command->isUndoable()) << name;
    }
    EXPECT_EQ(takeInfos(), "");
    autoUpdate = false;
}

TEST_F(operationCommand, limitsOnlyCellsOfItsTable)
{
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
    EXPECT_EQ(allWeights(), kBody);

    applyButtonCmd withoutTable(nullptr, nullptr);
    EXPECT_TRUE(whole.redoIt());
    EXPECT_EQ(allWeights(), kBody) << "all of a class serve the latest one's table";
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
