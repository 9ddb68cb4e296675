// SPDX-License-Identifier: Apache-2.0
//
// A test for each task of the user guide, in its order.

#include <cmath>

#include "guide/guideScene.h"

namespace
{

// Columns of the body.
enum column { hips, spine, chest, head, leftArm, rightArm };

} // namespace

class guide : public GuideScene
{
protected:
    // Rows of the vertices from `first` to `last`, in a column.
    void selectVertices(int first, int last, int column)
    {
        clickCell(first + 1, column);
        clickCell(last + 1, column, Qt::ShiftModifier);
    }
};

TEST_F(guide, load)
{
    EXPECT_EQ(columnNames(), "hips spine chest head leftArm rightArm");
    const QImage all = shot();
    click("Filter");
    mel("select -r body.vtx[0:5]");
    click("LoadComponent");
    EXPECT_EQ(hiddenColumns(), "head");
    mel("select -r body shirt");
    click("LoadComponent");
    EXPECT_EQ(columnNames(), "hips spine chest head leftArm rightArm collar");
    save("load", {all});
}

TEST_F(guide, edit)
{
    selectVertices(1, 4, spine);
    QTest::keyClick(view_, Qt::Key_Plus);
    QWidget *editor = view_->indexWidget(view_->currentIndex());
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "=0.2");
    const QImage typing = shot("LoadComponent");
    const double before = exactWeights(4)[spine];
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_NEAR(exactWeights(4)[spine], before + 0.2, 1e-3);
    save("edit", {typing, shot("LoadComponent")});
}

TEST_F(guide, drag)
{
    selectVertices(1, 4, spine);
    const QImage before = shot("LoadComponent");
    click("absolute");
    dragTo("valueSlider", 400);
    EXPECT_NEAR(exactWeights(1)[spine], 0.4, 1e-9);
    EXPECT_NEAR(exactWeights(4)[spine], 0.4, 1e-9);
    save("drag", {before, shot("LoadComponent")});
}

TEST_F(guide, lock)
{
    clickHeader(Qt::Horizontal, chest);
    click("Lock");
    clickHeader(Qt::Vertical, 3);
    click("Lock");
    clickCell(6, leftArm);
    click("Lock");
    clickCell(7, hips);
    const double before = exactWeights(5)[leftArm];
    clickCell(6, spine);
    typeKeys("0.5");
    EXPECT_NEAR(exactWeights(5)[leftArm], before, 1e-9);
    save("lock", {shot("LoadComponent")});
}

TEST_F(guide, round)
{
    enter("precisionEdit", "0.01");
    click("RoundPrecision");
    EXPECT_EQ(exactWeights(0)[hips], std::round(exactWeights(0)[hips] * 100.0) / 100.0);
    save("round", {shot()});
}

TEST_F(guide, limit)
{
    enter("maxInfluenceEdit", "2");
    const QImage marked = shot();
    click("ApplyInfluence");
    EXPECT_EQ(exactWeights(0)[chest] + exactWeights(0)[leftArm] + exactWeights(0)[rightArm], 0.0);
    save("limit", {marked, shot()});
}

TEST_F(guide, flood)
{
    clickHeader(Qt::Horizontal, head);
    chooseOperation(replaceInfluence);
    enter("floodValueEdit", "0.25");
    click("Apply");
    EXPECT_NEAR(exactWeights(5)[head], 0.25, 1e-9);
    save("flood", {shot()});
}

TEST_F(guide, smooth)
{
    clickHeader(Qt::Horizontal, hips);
    chooseOperation(smoothInfluence);
    const double before = exactWeights(2)[hips];
    click("Apply");
    EXPECT_NE(exactWeights(2)[hips], before);
    mel("undo");
    view_->clearSelection();
    chooseOperation(smoothWeights);
    enter("requiredWeightDifferenceEdit", "0.01");
    click("Apply");
    EXPECT_NE(exactWeights(2)[hips], before);
    save("smooth", {shot()});
}

TEST_F(guide, undo)
{
    selectVertices(1, 4, spine);
    const double before = exactWeights(2)[spine];
    typeKeys("0.5");
    const QImage typed = shot("LoadComponent");
    QTest::keyClick(view_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NEAR(exactWeights(2)[spine], before, 1e-9);
    save("undo", {typed, shot("LoadComponent")});
    QTest::keyClick(view_, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_NEAR(exactWeights(2)[spine], 0.5, 1e-9);
}
