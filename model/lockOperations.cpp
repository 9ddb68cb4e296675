// SPDX-License-Identifier: Apache-2.0
// Locking what is selected, and locking again what was unlocked as a whole.
#include "model/weightTableModel.h"

#include "model/lockEdit.h"
#include "model/messages.h"
#include "model/selectionParts.h"

#include <maya/MGlobal.h>

namespace
{

void lockColumns(const QVector<int> &columns, const lockState &locks, lockEdit &edit)
{
    for (int i = 0; i < columns.size(); ++i) {
        if (locks.isJointLocked(columns.at(i)))
            MGlobal::displayInfo(kJointAlreadyLocked);
        else
            edit.lockColumn(columns.at(i));
    }
}

// False at a shape row, where the whole operation ends.
bool lockRows(const QVector<int> &rows, const lockState &locks, lockEdit &edit)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (!edit.isVertexRow(rows.at(i), kShapeRowForLocking))
            return false;
        if (locks.isRowLocked(rows.at(i)))
            MGlobal::displayInfo(kRowAlreadyLocked);
        else
            edit.lockRow(rows.at(i));
    }
    return true;
}

void lockCells(const QVector<cellIndex> &cells, lockEdit::repetition repeat, lockEdit &edit)
{
    for (int i = 0; i < cells.size(); ++i) {
        if (!edit.isVertexRow(cells.at(i).row, kShapeRowForLocking))
            return;
        edit.writeCellLock(cells.at(i), repeat);
        edit.listCell(cells.at(i), repeat);
    }
}

} // namespace

void weightTableModel::newLockSelected()
{
    const selectionParts selected(viewSelection(), rowCount(), columnCount());
    if (selected.isEmpty()) {
        MGlobal::displayError(kNothingToLock);
        return;
    }
    lockEdit edit(*this);
    lockColumns(selected.columns(), locks_, edit);
    if (lockRows(selected.rows(), locks_, edit))
        lockCells(selected.cells(), lockEdit::kOnce, edit);
}

// Deliberate: a cell that is locked twice is stored and listed twice. Pinned by the test
// lockCell.storesASecondLockOfTheSameCell.
void weightTableModel::lockCell()
{
    lockEdit edit(*this);
    lockCells(cellsOf(viewSelection()), lockEdit::kAgain, edit);
}

void weightTableModel::restoreLocks()
{
    lockEdit edit(*this);
    // The table may have become smaller since.
    const QList<int> columns = previousLocks_.joints();
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i) < columnCount())
            edit.lockColumn(columns.at(i));
    }
    const QList<int> rows = previousLocks_.rows();
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i) < rowCount() && edit.isVertexRow(rows.at(i), kShapeRowForLocking))
            edit.lockRow(rows.at(i));
    }
    const QList<cellIndex> cells = previousLocks_.cells();
    for (int i = 0; i < cells.size(); ++i) {
        if (cells.at(i).row >= rowCount() || cells.at(i).column >= columnCount() ||
            !edit.isVertexRow(cells.at(i).row, kShapeRowForLocking))
            continue;
        edit.writeCellLock(cells.at(i), lockEdit::kAgain);
        edit.listCell(cells.at(i), lockEdit::kAgain);
    }
}
