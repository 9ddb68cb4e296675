// SPDX-License-Identifier: Apache-2.0
#include "model/messages.h"
#include "model/smoothingScript.h"
#include "model/smoothingSelection.h"

#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace
{

// Two shapes with two vertices each; the joint in column 1 does not move the second one.
const weightRows kRows = {{kShapeRowTag, -1, -1}, {0, 0.25, 0.75},      {0, 0, 1},
                          {kShapeRowTag, -1, -1}, {1, 0.5, kInertCell}, {1, 1, kInertCell}};

std::string text(const char *message)
{
    return message ? message : "";
}

} // namespace

TEST(screenForSmoothing, takesTheVertexRowsOfOneSkinCluster)
{
    const struct {
        QVector<int> selected;
        QVector<int> skinClusters;
        const char *refusal;
        QVector<int> rows;
    } cases[] = {
        {{1, 2}, {0, 1}, nullptr, {1, 2}},
        {{0, 2, 3}, {0, 1}, nullptr, {2}},
        {{2, 4, 5}, {0, 1}, kSeveralSkinClusters, {}},
        {{2, 4, 5}, {0, 0}, nullptr, {2, 4, 5}},
        {{0, 3}, {0, 1}, kNoVertexToSmooth, {}},
        {{1, 6}, {0, 1}, kInvalidRow, {}},
        {{-1}, {0, 1}, kInvalidRow, {}},
    };
    for (const auto &c : cases) {
        const rowsToSmooth result = screenForSmoothing(c.selected, kRows, c.skinClusters);
        EXPECT_EQ(text(result.refusal), text(c.refusal)) << c.selected.first();
        EXPECT_EQ(result.rows, c.rows) << c.selected.first();
    }
}

TEST(screenForPainting, takesTheUnlockedWeightsOfOneColumn)
{
    QStandardItemModel table(6, 2);
    const struct {
        const char *what;
        QVector<QVector<int>> ranges; // top, left, bottom, right
        int lockedJoint;
        QVector<int> lockedRows;
        QVector<int> lockedCellRows; // in column 0
        const char *refusal;
        QVector<int> rows;
    } cases[] = {
        {"nothing", {}, -1, {}, {}, kNoJointToSmooth, {}},
        {"a column", {{0, 0, 5, 0}}, -1, {}, {}, nullptr, {1, 2, 4, 5}},
        {"a column of another shape", {{0, 1, 5, 1}}, -1, {}, {}, nullptr, {1, 2}},
        {"cells", {{4, 0, 4, 0}, {1, 0, 1, 0}}, -1, {}, {}, nullptr, {1, 4}},
        {"one range, two columns", {{1, 0, 1, 1}}, -1, {}, {}, kCellsOfSeveralJoints, {}},
        {"two ranges", {{1, 0, 1, 0}, {2, 1, 2, 1}}, -1, {}, {}, kCellsOfSeveralJoints, {}},
        {"a locked joint", {{1, 0, 1, 0}}, 0, {}, {}, kLockedJointToSmooth, {}},
        {"beside a locked joint", {{1, 0, 1, 0}}, 1, {}, {}, nullptr, {1}},
        {"locked rows and cells", {{0, 0, 5, 0}}, -1, {1}, {4}, nullptr, {2, 5}},
        {"all locked", {{1, 0, 2, 0}}, -1, {1}, {2}, nullptr, {}},
    };
    for (const auto &c : cases) {
        QItemSelection selection;
        for (const QVector<int> &range : c.ranges)
            selection.append(QItemSelectionRange(table.index(range[0], range[1]),
                                                 table.index(range[2], range[3])));
        lockState locks;
        locks.lockJoint(c.lockedJoint);
        for (const int row : c.lockedRows)
            locks.lockRow(row);
        for (const int row : c.lockedCellRows)
            locks.lockCell(row, 0);
        const cellsToPaint result = screenForPainting(selection, kRows, locks);
        EXPECT_EQ(text(result.refusal), text(c.refusal)) << c.what;
        EXPECT_EQ(result.rows, c.rows) << c.what;
    }
}

TEST(smoothingScripts, readAsMayaReadsThem)
{
    rowNameList names;
    names.appendShape("a");
    names.appendVertex(3);
    names.appendVertex(12);
    names.appendShape("b");
    names.appendVertex(0);
    const QString vertices = vertexWords({1, 2, 4}, kRows, names, {"a", "|b|c"});
    EXPECT_EQ(vertices.toStdString(), "a.vtx[3] a.vtx[12] |b|c.vtx[0] ");
    EXPECT_EQ(smoothingScript("0.5", 3, "skinCluster1").toStdString(),
              "skinCluster -e -sw 0.5 -swi 3 -omi 1 skinCluster1;");
    EXPECT_EQ(smoothingOfVertices("a.vtx[3] ", "smooth;").toStdString(),
              "select -r a.vtx[3] ;smooth;");
    EXPECT_EQ(paintSetUpScript("a.vtx[3] ", "hip").toStdString(),
              "selectType -ocm -alc false;\nselectType -ocm -vertex true;\n"
              "select -r a.vtx[3] ;\nArtPaintSkinWeightsTool;\nartAttrSkinToolScript 4;\n"
              "artAttrSkinJointMenu(\"artJoinListPopupMenu\", \"artAttrSkinPaintCtx\" );\n"
              "artAttrPaintOperation artAttrSkinPaintCtx Smooth;\n"
              "artAttrSkinPaintCtx -e -skinPaintMode 1 artAttrSkinContext;\n"
              "artSkinSelectInfluence artAttrSkinPaintCtx hip;\n");
    EXPECT_EQ(paintFloodScript("0.25").toStdString(),
              "artAttrSkinPaintCtx -e -opacity 0.25 `currentCtx`;\n"
              "artAttrSkinPaintCtx -e -clear `currentCtx`;\n");
}
