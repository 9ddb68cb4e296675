// SPDX-License-Identifier: Apache-2.0
//
// Setting and moving the selected weights.
#include <QLineEdit>
#include <QSlider>

#include "model/messages.h"
#include "support/windowScene.h"

class valueRow : public WindowScene
{
protected:
    valueRow() { loadBody(); }

    // "300 [0.0]": the slider's step, the edit's text.
    std::string row()
    {
        return std::to_string(stepOf("valueSlider")) + " [" + textOf("valueEdit") + "]";
    }
    void setAbsolute(bool isAbsolute) { click(isAbsolute ? "absolute" : "relative"); }
};

TEST_F(valueRow, movesWeightsByTheWholeDifferenceSinceTheSelection)
{
    clickCell(1, 0);
    dragTo("valueSlider", 100);
    EXPECT_EQ(weights(0), "0.6 0.24 0.16");
    EXPECT_EQ(row(), "100 [0.100]");
    dragTo("valueSlider", 200);
    EXPECT_EQ(weights(0), "0.7 0.18 0.12");
    enter("valueEdit", "-0.1");
    EXPECT_EQ(weights(0), "0.4 0.36 0.24");
    EXPECT_EQ(row(), "-100 [-0.1]");
    dragTo("valueSlider", 0);
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    mel("undo; undo; undo; undo");
    EXPECT_EQ(weights(0) + shown(1), "0.5 0.3 0.20.500 0.300 0.200");
}

TEST_F(valueRow, setsWeights)
{
    setAbsolute(true);
    selectCells(1, 0, 2, 0);
    dragTo("valueSlider", 700);
    EXPECT_EQ(weights(0) + ", " + weights(1), "0.7 0.18 0.12, 0.7 0.1 0.2");
    EXPECT_EQ(row(), "700 [0.700]");
    enter("valueEdit", "1.5");
    EXPECT_EQ(weights(0), "1 0 0");
    EXPECT_EQ(row(), "1000 [1.000]") << "what the cell has got";
}

TEST_F(valueRow, movesAndSetsWholeColumns)
{
    clickHeader(Qt::Horizontal, 0);
    EXPECT_EQ(row(), "0 [0.0]");
    dragTo("valueSlider", -250);
    EXPECT_EQ(shown(1) + ", " + shown(4), "0.250 0.450 0.300, 0.750 0.125 0.125");
    setAbsolute(true);
    clickHeader(Qt::Horizontal, 2);
    EXPECT_EQ(row(), "0 [ ]");
    enter("valueEdit", "0.5");
    EXPECT_EQ(cellText(1, 2) + ' ' + cellText(4, 2), "0.500 0.500");
}

TEST_F(valueRow, callsNothingWhileTheHandleMoves)
{
    clickCell(1, 0);
    const std::string items = undoItems();
    QSlider &slider = control<QSlider>("valueSlider");
    slider.setSliderDown(true);
    for (const int step : {100, -200, 250}) {
        slider.setSliderPosition(step);
        EXPECT_EQ(control<QLineEdit>("valueEdit").text().toDouble(), step / 1000.0);
    }
    EXPECT_EQ(undoItems() + weights(0), items + "0.5 0.3 0.2");
    slider.setSliderDown(false);
    EXPECT_NE(undoItems(), items);
    EXPECT_EQ(weights(0), "0.75 0.15 0.1");
}

TEST_F(valueRow, startsAtTheCellsWeight)
{
    clickCell(1, 1);
    EXPECT_EQ(row(), "300 [0.0]");
    setAbsolute(true);
    EXPECT_EQ(row(), "300 [0.300]");
    EXPECT_EQ(control<QSlider>("valueSlider").minimum(), 0);
    QTest::keyClick(view_, Qt::Key_Down);
    EXPECT_EQ(row(), "250 [0.250]") << "keys select, too";
    clickCell(0, 1);
    EXPECT_EQ(row(), "0 [ ]") << "a shape row holds no weight";
    selectCells(1, 0, 2, 1);
    EXPECT_EQ(row(), "0 [ ]");
    setAbsolute(false);
    EXPECT_EQ(row(), "0 [0.0]");
    EXPECT_EQ(control<QSlider>("valueSlider").minimum(), -1000);
    load("body.vtx[0]");
    EXPECT_EQ(row(), "0 [ ]") << "nothing is selected in the new table";
    EXPECT_EQ(takeErrors() + takeWarnings(), "");
}

// What the edit says has not been moved is the start of the next drag.
TEST_F(valueRow, beginsAgainWhenTheCellIsClickedAgain)
{
    const struct {
        const char *what;
        std::function<void()> begin;
    } cases[] = {
        {"click", [this] { clickCell(1, 0); }},
        {"modes", [this] { setAbsolute(true), setAbsolute(false); }},
        {"typing", [this] { typeKeys("0.6"); }},
        {"header",
         [this] {
             clickHeader(Qt::Vertical, 1);
             selectCells(1, 0, 1, 0);
         }},
    };
    for (const auto &each : cases) {
        mel("setAttr -s 3 bodySkin.wl[0].w[0:2] 0.5 0.3 0.2");
        load("body");
        clickCell(1, 0);
        dragTo("valueSlider", 100);
        each.begin();
        EXPECT_EQ(textOf("valueEdit"), "0.0") << each.what;
        dragTo("valueSlider", 200);
        EXPECT_EQ(cellText(1, 0), "0.800") << each.what;
    }
}

TEST_F(valueRow, refusesWithAWarningAndEmptiesItself)
{
    const struct {
        int top, left, bottom, right;
        const char *warning;
    } cases[] = {
        {-1, -1, -1, -1, kNoCellForValue},
        {0, 0, 0, 2, kNoValidCellForValue},
    };
    const std::string items = undoItems();
    for (const auto &each : cases) {
        for (const bool isAbsolute : {false, true}) {
            setAbsolute(isAbsolute);
            view_->clearSelection();
            if (each.top >= 0)
                selectCells(each.top, each.left, each.bottom, each.right);
            dragTo("valueSlider", 500);
            EXPECT_EQ(takeWarnings(), each.warning);
            EXPECT_EQ(row(), "0 [ ]");
            enter("valueEdit", "0.5");
            EXPECT_EQ(takeWarnings(), each.warning);
            EXPECT_EQ(row(), "0 [ ]");
        }
    }
    EXPECT_EQ(undoItems() + takeErrors(), items);
}

TEST_F(valueRow, takesNoTextForZero)
{
    setAbsolute(true);
    clickCell(1, 0);
    for (const char *text : {"", "half", "0,5", "nan", "inf"}) {
        enter("valueEdit", QLatin1String(text));
        EXPECT_EQ(takeWarnings(), kNoNumberForCells) << text;
        EXPECT_EQ(weights(0), "0.5 0.3 0.2") << text;
        EXPECT_EQ(stepOf("valueSlider"), 500) << text;
    }
}

TEST_F(valueRow, goesBackWhenTheModelRefuses)
{
    clickCell(1, 0);
    call("lockCell");
    dragTo("valueSlider", 100);
    EXPECT_EQ(takeErrors(), kNothingToDrag);
    EXPECT_EQ(row(), "500 [0.0]");
    clickHeader(Qt::Horizontal, 1);
    dragTo("valueSlider", 100); // beside a locked cell nothing is said
    EXPECT_EQ(row(), "0 [0.0]");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
}

TEST_F(valueRow, asksForACellWhenTheLastOneIsClickedAway)
{
    clickCell(1, 0);
    EXPECT_EQ(takeErrors(), "");
    clickCell(1, 0, Qt::ControlModifier);
    EXPECT_EQ(takeErrors(), kNoCellSelected);
    EXPECT_EQ(row(), "0 [ ]");
}

TEST_F(valueRow, highlightsWhatHeadersSelect)
{
    click("Highlight");
    clickHeader(Qt::Horizontal, 1);
    EXPECT_EQ(hilitedInMaya(), "knee");
    clickHeader(Qt::Vertical, 3);
    EXPECT_EQ(selectedInMaya(), "body.vtx[2]");
    click("Highlight");
    clickCell(2, 0);
    EXPECT_EQ(selectedInMaya(), "body.vtx[2]") << "switched off";
}
