// SPDX-License-Identifier: Apache-2.0
// Unlocking what is selected, and everything.
#include "model/weightTableModel.h"

#include "model/lockEdit.h"
#include "model/messages.h"
#include "model/selectionParts.h"

#include <maya/MGlobal.h>

namespace
{

// False at a shape row, where the whole operation ends.
bool unlockRows(const QVector<int> &rows, const lockState &locks, lockEdit &edit)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (!edit.isVertexRow(rows.at(i), kShapeRowForUnlocking))
            return false;
        if (locks.isRowLocked(rows.at(i)))
            edit.unlockRow(rows.at(i));
    }
    return true;
}

} // namespace

void weightTableModel::newUnlockSelected()
{
    const selectionParts selected(viewSelection(), rowCount(), columnCount());
    if (selected.isEmpty()) {
        MGlobal::displayError(kNothingSelectedToUnlock);
        return;
    }
    lockEdit edit(*this);
    for (int i = 0; i < selected.columns().size(); ++i) {
        if (locks_.isJointLocked(selected.columns().at(i)))
            edit.unlockColumn(selected.columns().at(i));
    }
    if (!unlockRows(selected.rows(), locks_, edit))
        return;
    for (int i = 0; i < selected.cells().size(); ++i) {
        const cellIndex &cell = selected.cells().at(i);
        if (!edit.isLocked(cell))
            continue;
        if (!edit.isVertexRow(cell.row, kShapeRowForLocking))
            return;
        edit.unlockCell(cell, &selected);
    }
}

void weightTableModel::unlockCell()
{
    const QVector<cellIndex> cells = cellsOf(viewSelection());
    lockEdit edit(*this);
    for (int i = 0; i < cells.size(); ++i) {
        if (!edit.isLocked(cells.at(i))) {
            MGlobal::displayError(kCellNotLocked);
            continue;
        }
        if (!edit.isVertexRow(cells.at(i).row, kShapeRowForLocking))
            return;
        edit.unlockCell(cells.at(i), nullptr);
    }
}

void weightTableModel::newUnlockAll()
{
    previousLocks_ = locks_;
    if (locks_.isEmpty()) {
        MGlobal::displayError(kNothingToUnlock);
        return;
    }
    lockEdit edit(*this);
    const QList<int> columns = locks_.joints();
    for (int i = 0; i < columns.size(); ++i)
        edit.unlockColumn(columns.at(i));
    const QList<int> rows = locks_.rows();
    for (int i = 0; i < rows.size(); ++i) {
        if (isVertexRow(weights_.rows.at(rows.at(i))))
            edit.unlockRow(rows.at(i));
        else
            MGlobal::displayError(kShapeAmongLockedRows);
    }
    const QList<cellIndex> cells = locks_.cells();
    for (int i = 0; i < cells.size(); ++i) {
        if (!edit.isVertexRow(cells.at(i).row, kShapeRowForLocking))
            return;
        edit.unlockCell(cells.at(i), nullptr);
    }
    locks_.clear();
}
