// SPDX-License-Identifier: Apache-2.0
// Copies of the table's rows, one level deep, for what Maya's undo queue does not carry. Each fill
// replaces the copy as a whole; until one side is written to, it costs a reference.
#include "model/weightTableModel.h"

#include "model/messages.h"

#include <maya/MGlobal.h>

void weightTableModel::keepPreviousWeights()
{
    previousRows_ = weights_.rows;
}

void weightTableModel::saveUndoCopy()
{
    undoRows_ = weights_.rows;
}

void weightTableModel::restoreUndoCopy()
{
    restoreRows(undoRows_, kNothingToUndo);
}

void weightTableModel::restorePreviousWeights()
{
    restoreRows(previousRows_, kCannotRestoreWeights);
}

// By value: they may be the very snapshot that is taken first.
void weightTableModel::restoreRows(weightRows rows, const char *failure)
{
    keepPreviousWeights();
    if (weights_.rows.isEmpty())
        return;
    const bool fits =
        rows.size() == weights_.rows.size() && rows.last().size() == weights_.rows.last().size();
    if (!fits) {
        MGlobal::displayError(failure);
        return;
    }
    weights_.rows = rows;
    weights_.notes.allOtherwiseRounded = true;
    setUpColumn();
    announceAllRows();
}

void weightTableModel::announceAllRows()
{
    const int lastRow = rowCount() - 1;
    const int lastColumn = columnCount() - 1;
    if (lastColumn >= 0) {
        emit dataChanged(index(0, 0), index(lastRow, lastColumn));
        emit headerDataChanged(Qt::Horizontal, 0, lastColumn);
    }
    emit headerDataChanged(Qt::Vertical, 0, lastRow);
}

void weightTableModel::undoLoad()
{
    beginResetModel();
    qSwap(weights_, weightsBeforeLoad_);
    forgetSnapshots();
    endResetModel();
    if (weights_.rows.isEmpty())
        return;
    // Edits may have come since they were read.
    refreshAllRows();
    setUpColumn();
    announceAllRows();
}

// They are of another table's shape.
void weightTableModel::forgetSnapshots()
{
    previousRows_.clear();
    undoRows_.clear();
    unroundedRows_.clear();
    handOver_.roundedRows.clear();
    handOver_.smoothingScript.clear();
    handOver_.paintedRows.clear();
}
