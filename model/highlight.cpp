// SPDX-License-Identifier: Apache-2.0
// The table's selection carried over to Maya, and the leading cell of a selection.
#include "model/weightTableModel.h"

#include <QItemSelectionModel>
#include <QTableView>

#include "model/messages.h"
#include "model/tableSelection.h"
#include "model/vertexComponents.h"
#include "plugin/sceneCallbacks.h"

#include <maya/MGlobal.h>
#include <maya/MSelectionList.h>

namespace
{

void emptyHiliteList()
{
    MSelectionList nothing;
    MGlobal::setHiliteList(nothing);
}

void redrawMaya()
{
    MGlobal::executeCommand("refresh");
}

// The vertices of the vertex rows among `rows`, one item per run of rows of the same shape.
MSelectionList verticesOfRows(const weightList &weights, const QVector<int> &rows)
{
    MSelectionList selection;
    for (int i = 0; i < rows.size();) {
        const int shape = shapeIndexOf(weights.rows.at(rows.at(i)));
        if (shape < 0) {
            ++i;
            continue;
        }
        QVector<int> vertices;
        const int end = weights.endOfVertexRows(shape);
        for (; i < rows.size() && rows.at(i) < end; ++i)
            vertices.append(weights.rowNames.vertex(rows.at(i)));
        selection.add(weights.shapePaths[shape], componentOf(vertices));
    }
    return selection;
}

} // namespace

QItemSelection weightTableModel::viewSelection() const
{
    return view_ && view_->selectionModel() ? view_->selectionModel()->selection()
                                            : QItemSelection();
}

void weightTableModel::selectVerticesInMaya(const QVector<int> &rows)
{
    emptyHiliteList();
    replaceSelectionQuietly(verticesOfRows(weights_, rows));
    redrawMaya();
}

void weightTableModel::toggleHilight(bool on)
{
    isHighlighting_ = on;
    if (weights_.rows.isEmpty()) {
        MGlobal::displayError(kNothingLoaded);
        return;
    }
    if (!on) {
        redrawMaya();
        emptyHiliteList();
        return;
    }
    selectVerticesInMaya(rowsWithSelectedCell(viewSelection()));
    // After the vertices: selecting those puts their mesh on the list that the joints are to have
    // for themselves.
    if (!wholeColumns(viewSelection(), rowCount()).isEmpty())
        columnHeaderSelected(0);
}

void weightTableModel::cellSelected(const QModelIndex &)
{
    // Rows that follow Maya's selection are not sent back: that would take from it what the table
    // does not show.
    if (isHighlighting_ && !isMirroring_)
        selectVerticesInMaya(rowsWithSelectedCell(viewSelection()));
}

void weightTableModel::multiCellSelected()
{
    cellSelected(index(0, 0));
    renewCurrentCellValue();
}

void weightTableModel::columnHeaderSelected(int)
{
    if (isHighlighting_) {
        const QVector<int> columns = wholeColumns(viewSelection(), rowCount());
        MSelectionList joints;
        for (int i = 0; i < columns.size(); ++i)
            joints.add(weights_.jointPaths[columns.at(i)]);
        MGlobal::setHiliteList(joints);
    }
    renewCurrentCellValue();
}

void weightTableModel::rowHeaderSelected(int)
{
    if (isHighlighting_)
        selectVerticesInMaya(wholeRows(viewSelection(), columnCount()));
    renewCurrentCellValue();
}

// The weight of the cell that a drag would lead with. Without one, what the top right cell holds.
void weightTableModel::renewCurrentCellValue()
{
    cellIndex leading = leadingCell();
    if (leading.row < 0)
        leading = topRightCell(viewSelection());
    if (leading.row >= 0 && leading.row < rowCount() &&
        hasCell(weights_.rows.at(leading.row), leading.column))
        currentCellValue_ = cellOf(weights_.rows.at(leading.row), leading.column);
}
