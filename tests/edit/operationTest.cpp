// SPDX-License-Identifier: Apache-2.0
//
// What holds for every operation that writes weights.

#include <functional>

#include "support/editScene.h"

namespace
{

const char kBody[] = "0.5 0.3 0.2; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0";

} // namespace

class operations : public EditScene
{
protected:
    operations()
    {
        makeSkin("body", {"hip", "knee", "ankle"},
                 {{.5, .3, .2}, {.25, .25, .5}, {.3334, .3333, .3333}, {1, 0, 0}});
        load("body");
    }

    void expectBody(const char *weights, const std::string &mode, const std::string &when) const
    {
        EXPECT_EQ(allWeights(), weights) << when;
        EXPECT_EQ(melString("getAttr bodySkin.nw"), mode) << when;
    }
};

TEST_F(operations, writeTakeBackAndWriteAgain)
{
    const auto flood = [this] {
        selectColumn(1);
        call("replaceValue", 1.0);
    };
    const auto limit = [this] {
        view_->clearSelection();
        call("setMaxValue", 2);
        call("applyMaxInfluence");
    };
    const auto drag = [this] {
        selectCells(1, 0, 2, 0);
        call("dragSlider", 0.75, true);
    };
    const auto dragColumn = [this] {
        selectColumn(2);
        call("dragSlider", 0.0, true);
    };
    const auto paint = [this] {
        selectCells(1, 0, 1, 0);
        call("applySkinPaintSmooth", 1.0);
    };
    const char *const kTyped = "0.8 0.12 0.08; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0";
    const struct {
        const char *name;
        const char *mode; // of normalization, which is switched on meanwhile where it is off
        std::function<void()> operate;
        const char *written;
    } cases[] = {
        {"typing", "1", [this] { type(1, 0, "0.8"); }, kTyped},
        {"typing", "0", [this] { type(1, 0, "0.8"); }, kTyped},
        {"typing", "2", [this] { type(1, 0, "0.8"); },
         "0.8 0.3 0.2; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0"},
        {"flooding", "0", flood, "0 1 0; 0 1 0; 0 1 0; 0 1 0"},
        {"flooding", "2", flood, "0.5 1 0.2; 0.25 1 0.5; 0.3334 1 0.3333; 1 1 0"},
        {"rounding", "1", [this] { call("applyPrecision"); },
         "0.5 0.3 0.2; 0.25 0.25 0.5; 0.333 0.333 0.334; 1 0 0"},
        {"limiting", "0", limit, "0.625 0.375 0; 0 0.333333 0.666667; 0 0.5 0.5; 1 0 0"},
        {"dragging", "0", drag,
         "0.75 0.15 0.1; 0.75 0.0833333 0.166667; 0.3334 0.3333 0.3333; 1 0 0"},
        {"dragging a column", "0", dragColumn,
         "0.625 0.375 0; 0.5 0.5 0; 0.500075 0.499925 0; 1 0 0"},
        {"painting", "1", paint,
         "0.2917 0.42498 0.28332; 0.25 0.25 0.5; 0.3334 0.3333 0.3333; 1 0 0"},
    };
    for (const auto &c : cases) {
        const std::string name = std::string(c.name) + ", mode " + c.mode;
        load("body");
        mel(std::string("setAttr bodySkin.nw ") + c.mode);
        call("setAutoUpdate", true);
        c.operate();
        expectBody(c.written, c.mode, name);
        mel("undo");
        expectBody(kBody, c.mode, name + ", undone");
        EXPECT_EQ(shown(1), "0.500 0.300 0.200") << name << ": the table follows";
        mel("redo");
        expectBody(c.written, c.mode, name + ", redone");
        mel("undo; select -r body.vtx[1]");
        EXPECT_EQ(rowNames(), "bodyShape vtx[1]") << name << ": it follows the selection still";
        call("setAutoUpdate", false);
    }
    EXPECT_EQ(takeErrors() + takeInfos(), "");
}
