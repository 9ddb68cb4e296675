// SPDX-License-Identifier: Apache-2.0
//
// Texts, colours and flags, as a view asks the model for them.

#include <QAbstractItemModelTester>

#include <maya/MColor.h>
#include <maya/MDagPath.h>
#include <maya/MFnDagNode.h>
#include <maya/MGlobal.h>
#include <maya/MSelectionList.h>

#include "support/editorScene.h"

namespace
{

std::string colorName(const QVariant &value)
{
    if (!value.isValid())
        return "";
    const struct {
        Qt::GlobalColor color;
        const char *name;
    } names[] = {{Qt::red, "red"},
                 {Qt::yellow, "yellow"},
                 {Qt::gray, "gray"},
                 {Qt::black, "black"},
                 {Qt::darkCyan, "darkCyan"}};
    for (const auto &known : names) {
        if (value.value<QColor>() == QColor(known.color))
            return known.name;
    }
    return value.value<QColor>().name().toStdString();
}

QColor dormantColor(const char *joint)
{
    MSelectionList list;
    MDagPath path;
    MGlobal::getSelectionListByName(joint, list);
    list.getDagPath(0, path);
    const MColor color = MFnDagNode(path).dormantColor();
    return QColor::fromRgbF(color.r, color.g, color.b);
}

} // namespace

// Joints a to d; d is locked, and so are the vertices 3 and 6 and the cell of vertex 1 and a.
class presentation : public EditorScene
{
protected:
    presentation()
    {
        makeSkin("body", {"a", "b", "c", "d"},
                 {{0.5, 0.5, 0, 0},
                  {0.25, 0.75, 0, 0},
                  {0.5, 0.25, 0.25, 0},
                  {1, 0, 0, 0},
                  {0.5, 0.0005, 0.0004, 0},
                  {0.2, 0.2, 0.2, 0.2},
                  {0.25, 0.25, 0.5, 0},
                  {1, 0, 0, 0}});
        mel("setAttr b.useObjectColor 1; setAttr b.objectColor 3");
        load("body"); // adds the attributes that keep locks
        mel("setAttr bodySkin.lockedVertexIndices[3] 1;"
            "setAttr bodySkin.lockedVertexIndices[6] 1;"
            "setAttr -type \"stringArray\" bodySkin.lockedJointNames 1 \"|d\";"
            "setAttr -type \"string\" bodySkin.lockedCellIndices[1].lockedLocalJoints[0] \"|a\"");
        load();
        call("setMaxValue", 2);
    }
};

TEST_F(presentation, tellsTheStateOfEachCell)
{
    const char *const editable = "edit", *const locked = "";
    const struct {
        int row, column;
        const char *text, *background, *foreground, *flags;
    } cases[] = {
        {1, 0, "0.500", "darkCyan", "", editable},
        {1, 2, "0.000", "", "", editable},
        {1, 3, "0.000", "gray", "black", locked}, // joint
        {2, 0, "0.250", "gray", "black", locked}, // cell
        {2, 1, "0.750", "darkCyan", "", editable},
        {4, 0, "1.000", "gray", "black", locked}, // vertex
        {4, 2, "0.000", "gray", "black", locked},
        {5, 0, "0.500", "darkCyan", "red", editable}, // sum 0.5009
        {5, 1, "0.001", "darkCyan", "red", editable},
        {5, 2, "0.000", "", "red", editable},
        {5, 3, "0.000", "gray", "red", locked},
        {6, 3, "0.200", "gray", "red", locked},
    };
    for (const auto &c : cases) {
        const std::string place = std::to_string(c.row) + ", " + std::to_string(c.column);
        const QModelIndex index = model_->index(c.row, c.column);
        EXPECT_EQ(index.data(Qt::DisplayRole).toString().toStdString(), c.text) << place;
        EXPECT_TRUE(index.data(Qt::EditRole) == index.data(Qt::DisplayRole)) << place;
        EXPECT_EQ(colorName(index.data(Qt::BackgroundRole)), c.background) << place;
        EXPECT_EQ(colorName(index.data(Qt::ForegroundRole)), c.foreground) << place;
        EXPECT_EQ(index.flags().testFlag(Qt::ItemIsEditable), c.flags == editable) << place;
        EXPECT_TRUE(index.flags().testFlag(Qt::ItemIsSelectable)) << place;
        EXPECT_TRUE(index.flags().testFlag(Qt::ItemIsEnabled)) << place;
        EXPECT_FALSE(index.data(Qt::ToolTipRole).isValid()) << place;
    }
}

TEST_F(presentation, tellsTheStateOfEachHeader)
{
    const struct {
        Qt::Orientation orientation;
        int section;
        const char *text, *background, *foreground;
    } cases[] = {
        {Qt::Horizontal, 0, "a", "", ""},
        {Qt::Horizontal, 3, "d", "gray", "black"},
        {Qt::Vertical, 0, "bodyShape", "red", ""},
        {Qt::Vertical, 1, "vtx[0]", "", ""},
        {Qt::Vertical, 3, "vtx[2]", "yellow", "black"}, // three joints
        {Qt::Vertical, 4, "vtx[3]", "gray", "black"},
        {Qt::Vertical, 5, "vtx[4]", "red", ""},
        {Qt::Vertical, 6, "vtx[5]", "red", "black"},    // four joints as well
        {Qt::Vertical, 7, "vtx[6]", "yellow", "black"}, // locked as well
    };
    for (const auto &c : cases) {
        const auto header = [&](int role) {
            return model_->headerData(c.section, c.orientation, role);
        };
        EXPECT_EQ(header(Qt::DisplayRole).toString().toStdString(), c.text);
        EXPECT_EQ(colorName(header(Qt::BackgroundRole)), c.background) << c.text;
        EXPECT_EQ(colorName(header(Qt::ForegroundRole)), c.foreground) << c.text;
    }
}

TEST_F(presentation, paintsShapeRowsInTheColorsOfTheirJoints)
{
    EXPECT_EQ(cell(0, 0, Qt::BackgroundRole).value<QColor>(), dormantColor("a"));
    EXPECT_EQ(cell(0, 1, Qt::BackgroundRole).value<QColor>(), dormantColor("b"));
    EXPECT_NE(dormantColor("a"), dormantColor("b"));
    EXPECT_EQ(cell(0, 3, Qt::BackgroundRole).value<QColor>(), dormantColor("d")) << "locked";
    EXPECT_EQ(cellText(0, 0), "");
    EXPECT_FALSE(cell(0, 0, Qt::ForegroundRole).isValid());
}

TEST_F(presentation, leavesACellOfAForeignJointEmpty)
{
    makeSkin("hat", {"e"}, {{1}, {1}, {1}, {1}});
    load("body hat.vtx[0]");
    const int hatVertex = 10;
    EXPECT_EQ(cellText(hatVertex, 0), "");
    EXPECT_FALSE(cell(hatVertex, 0, Qt::BackgroundRole).isValid());
    EXPECT_EQ(colorName(cell(hatVertex, 3, Qt::BackgroundRole)), "gray") << "locked";
    EXPECT_FALSE(cell(hatVertex, 4, Qt::ForegroundRole).isValid()) << "and out of the sum";
}

TEST_F(presentation, answersNothingOutsideTheTable)
{
    EXPECT_FALSE(model_->data(QModelIndex(), Qt::DisplayRole).isValid());
    EXPECT_EQ(model_->flags(QModelIndex()), Qt::NoItemFlags);
    EXPECT_FALSE(model_->headerData(99, Qt::Vertical).isValid());
    EXPECT_FALSE(model_->headerData(-1, Qt::Horizontal).isValid());
    EXPECT_EQ(model_->rowCount(model_->index(0, 0)), 0);
    mel("select -cl");
    load();
    EXPECT_FALSE(model_->headerData(0, Qt::Vertical).isValid());
}

// Qt's own checks, at every kind of change that the table goes through.
TEST_F(presentation, keepsTheRulesOfQtsModels)
{
    const QAbstractItemModelTester tester(model_,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    load("body.vtx[0:3]");
    call("toggleFilter", true);
    call("setMaxValue", 1);
    selectRow(1);
    call("setMaxValue", 3);
    mel("select body.vtx[2]");
    call("setAutoUpdate", true);
    mel("select body.vtx[1]; select -cl");
    call("setAutoUpdate", false);
    load();
    EXPECT_EQ(model_->rowCount(), 0);
}
