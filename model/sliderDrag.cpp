// SPDX-License-Identifier: Apache-2.0
// The value slider over selected cells, and over a joint column: one edit for each release.
#include "model/weightTableModel.h"

#include "model/dragCells.h"
#include "model/messages.h"
#include "model/tableSelection.h"

#include <maya/MGlobal.h>

void weightTableModel::dragSlider(double value, bool absolute)
{
    if (weights_.rows.isEmpty()) {
        MGlobal::displayError(kNothingLoaded);
        return;
    }
    if (!wholeColumns(viewSelection(), rowCount()).isEmpty()) {
        dragSliderColumn(value, absolute);
        return;
    }
    const QVector<cellIndex> cells =
        draggedCells(viewSelection(), weights_.rows, locks_, hiddenColumns());
    if (cells.isEmpty()) {
        MGlobal::displayError(kNothingToDrag);
        return;
    }
    const cellIndex lead = cells.first();
    const double lastValue = cellOf(weights_.rows.at(lead.row), lead.column);
    const double origValue = currentCellValue_;
    const sliderMove move = moveTo(value, absolute, lastValue, origValue);
    keepPreviousWeights();
    handOver_.pendingCells = cells;
    handOver_.pendingValues.clear();
    for (int i = 0; i < cells.size(); ++i) {
        const double weight = cellOf(weights_.rows.at(cells.at(i).row), cells.at(i).column);
        handOver_.pendingValues.append(movedWeight(move, weight));
    }
    runEdit("-dragSlider", rowsOf(cells));

    refreshEditedRows(cells);
    emit topRightCellDataChanged(cellOf(weights_.rows.at(lead.row), lead.column), lastValue,
                                 origValue);
    showFilteredColumns();
}

QSet<int> weightTableModel::hiddenColumns() const
{
    QSet<int> hidden;
    if (isFiltering_) {
        const QList<int> empty = emptyColumns_.columns();
        for (int i = 0; i < empty.size(); ++i)
            hidden.insert(empty.at(i));
    }
    return hidden;
}

cellIndex weightTableModel::leadingCell() const
{
    const QItemSelection selection = viewSelection();
    const QVector<int> columns = wholeColumns(selection, rowCount());
    if (columns.isEmpty())
        return firstDraggedCell(selection, weights_.rows, locks_, hiddenColumns());
    const cellIndex lead = {topmostWeight(weights_.rows, columns.last()), columns.last()};
    return lead;
}

// Deliberate: a single locked cell anywhere stops the drag without a word, a locked row with one.
// Pinned by the test sliderDrag.refusesAColumnBesideLocks.
void weightTableModel::dragSliderColumn(double value, bool absolute)
{
    const QVector<int> columns = wholeColumns(viewSelection(), rowCount());
    const int column = columns.isEmpty() ? -1 : columns.last();
    const int leadRow = topmostWeight(weights_.rows, column);
    if (locks_.isJointLocked(column) || locks_.hasRows()) {
        MGlobal::displayInfo(kJointIsLocked);
        return;
    }
    if (locks_.hasCells())
        return;
    if (leadRow < 0) {
        MGlobal::displayError(kNothingToDrag);
        return;
    }
    const double lastValue = cellOf(weights_.rows.at(leadRow), column);
    const double origValue = currentCellValue_;
    keepPreviousWeights();
    handOver_.operationColumn = column;
    handOver_.columnDrag = moveTo(value, absolute, lastValue, origValue);
    const QVector<int> rows = allVertexRows();
    runEdit("-dragSliderColumn", rows);

    refreshRowsEditedAt(rows, column);
    emit topRightCellDataChanged(cellOf(weights_.rows.at(leadRow), column), lastValue, origValue);
    showFilteredColumns();
}
