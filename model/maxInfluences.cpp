// SPDX-License-Identifier: Apache-2.0
// Limiting the influences per vertex: the maximum itself, and taking what is beyond it.
#include "model/weightTableModel.h"

#include "model/limitRows.h"
#include "model/messages.h"
#include "model/tableSelection.h"

#include <maya/MGlobal.h>

namespace
{

bool hasRowBeyond(int maximum, const QVector<int> &candidates, const weightRows &rows)
{
    for (int i = 0; i < candidates.size(); ++i) {
        if (influencesBeyond(maximum, rows.at(candidates.at(i))) > 0)
            return true;
    }
    return false;
}

} // namespace

void weightTableModel::setMaxValue(int maximum)
{
    previousMaxInfluences_ = settings_.maxInfluences;
    settings_.maxInfluences = maximum;

    const QVector<int> rows = wholeRows(viewSelection(), columnCount());
    for (int i = 0; i < rows.size(); ++i)
        emit headerDataChanged(Qt::Vertical, rows.at(i), rows.at(i));
    if (rows.isEmpty() && rowCount() > 0)
        emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

void weightTableModel::applyMaxInfluence()
{
    if (weights_.rows.isEmpty()) {
        MGlobal::displayError(kNothingLoaded);
        return;
    }
    keepPreviousWeights();
    const rowsToLimit screened = screenForLimit(rowsChosenForLimit(), weights_.rows, locks_);
    for (int i = 0; i < screened.refusedCount; ++i)
        MGlobal::displayInfo(kRowIsLocked);
    // A command that does nothing cannot be undone, and Maya drops its whole undo queue over that.
    if (!hasRowBeyond(settings_.maxInfluences, screened.rows, weights_.rows))
        return;
    handOver_.maxInfluenceRows = screened.rows;
    runEdit("-numMax");

    announceRows(screened.rows);
    showFilteredColumns();
}

// The whole rows that are selected, in the order of selecting; without any, all.
QVector<int> weightTableModel::rowsChosenForLimit() const
{
    const QItemSelection selection = viewSelection();
    const QVector<int> selected =
        inOrderOfSelecting(wholeRows(selection, columnCount()), selection, Qt::Vertical);
    if (selected.isEmpty())
        return allVertexRows();
    QVector<int> rows;
    for (int i = 0; i < selected.size(); ++i) {
        if (isVertexRow(weights_.rows.at(selected.at(i))))
            rows.append(selected.at(i));
    }
    return rows;
}

// Deliberate: the header is told also of a table without rows, whose last row is -1. Pinned by the
// test maxInfluences.goesBackToTheMaximumBefore.
void weightTableModel::undoMaxInfluence()
{
    settings_.maxInfluences = previousMaxInfluences_;
    if (weights_.rows.isEmpty())
        MGlobal::displayError(kNothingToUndo);
    emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}
