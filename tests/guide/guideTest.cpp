// SPDX-License-Identifier: Apache-2.0
//
// A test for each task of the user guide, in its order.

#include <cmath>

#include "guide/guideScene.h"

#include <QComboBox>
#include <QHeaderView>
#include <QRadioButton>

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
    void clickColumnHeader(int column)
    {
        QHeaderView *header = view_->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(header->sectionViewportPosition(column) + 5, 5));
    }
    void clickRowHeader(int vertex)
    {
        QHeaderView *header = view_->verticalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(5, header->sectionViewportPosition(vertex + 1) + 5));
    }
    void choose(const char *operation)
    {
        control<QComboBox>("floodOperation").setCurrentText(QLatin1String(operation));
    }
    double weight(int vertex, const char *joint)
    {
        return melNumbers(std::string("skinPercent -t ") + joint + " -q bodySkin body.vtx[" +
                          std::to_string(vertex) + "]")
            .front();
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
    const double before = weight(4, "spine");
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_NEAR(weight(4, "spine"), before + 0.2, 1e-3);
    save("edit", {typing, shot("LoadComponent")});
}

TEST_F(guide, drag)
{
    selectVertices(1, 4, spine);
    const QImage before = shot("LoadComponent");
    control<QRadioButton>("absolute").click();
    dragTo("valueSlider", 400);
    EXPECT_NEAR(weight(1, "spine"), 0.4, 1e-9);
    EXPECT_NEAR(weight(4, "spine"), 0.4, 1e-9);
    save("drag", {before, shot("LoadComponent")});
}

TEST_F(guide, lock)
{
    clickColumnHeader(chest);
    click("Lock");
    clickRowHeader(2);
    click("Lock");
    clickCell(6, leftArm);
    click("Lock");
    clickCell(7, hips);
    const double before = weight(5, "leftArm");
    clickCell(6, spine);
    typeKeys("0.5");
    EXPECT_NEAR(weight(5, "leftArm"), before, 1e-9);
    save("lock", {shot("LoadComponent")});
}

TEST_F(guide, round)
{
    enter("precisionEdit", "0.01");
    click("RoundPrecision");
    EXPECT_EQ(weight(0, "hips"), std::round(weight(0, "hips") * 100.0) / 100.0);
    save("round", {shot()});
}

TEST_F(guide, limit)
{
    enter("maxInfluenceEdit", "2");
    const QImage marked = shot();
    click("ApplyInfluence");
    EXPECT_EQ(weight(0, "chest") + weight(0, "leftArm") + weight(0, "rightArm"), 0.0);
    save("limit", {marked, shot()});
}

TEST_F(guide, flood)
{
    clickColumnHeader(head);
    choose("Replace(Per Influence)");
    enter("floodValueEdit", "0.25");
    click("Apply");
    EXPECT_NEAR(weight(5, "head"), 0.25, 1e-9);
    save("flood", {shot()});
}

TEST_F(guide, smooth)
{
    clickColumnHeader(hips);
    choose("Smooth(Per Influence)");
    const double before = weight(2, "hips");
    click("Apply");
    EXPECT_NE(weight(2, "hips"), before);
    mel("undo");
    view_->clearSelection();
    choose("Smooth Skin Weight");
    enter("requiredWeightDifferenceEdit", "0.01");
    click("Apply");
    EXPECT_NE(weight(2, "hips"), before);
    save("smooth", {shot()});
}

TEST_F(guide, undo)
{
    selectVertices(1, 4, spine);
    const double before = weight(2, "spine");
    typeKeys("0.5");
    const QImage typed = shot("LoadComponent");
    QTest::keyClick(view_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NEAR(weight(2, "spine"), before, 1e-9);
    save("undo", {typed, shot("LoadComponent")});
    QTest::keyClick(view_, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_NEAR(weight(2, "spine"), 0.5, 1e-9);
}
