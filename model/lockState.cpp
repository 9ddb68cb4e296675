// SPDX-License-Identifier: Apache-2.0
#include "model/lockState.h"

namespace
{

cellIndex cellAt(int row, int column)
{
    const cellIndex cell = {row, column};
    return cell;
}

} // namespace

void lockState::lockJoint(int column)
{
    joints_.append(column);
    jointSet_.insert(column);
}

void lockState::lockRow(int row)
{
    rows_.append(row);
    rowSet_.insert(row);
}

void lockState::lockCell(int row, int column)
{
    cells_.append(cellAt(row, column));
    ++cellCounts_[cellAt(row, column)];
}

void lockState::unlockJoint(int column)
{
    joints_.removeAll(column);
    jointSet_.remove(column);
}

void lockState::unlockRow(int row)
{
    rows_.removeAll(row);
    rowSet_.remove(row);
}

void lockState::unlockCell(int row, int column)
{
    const cellIndex cell = cellAt(row, column);
    if (!cells_.removeOne(cell))
        return;
    if (--cellCounts_[cell] == 0)
        cellCounts_.remove(cell);
}

void lockState::clear()
{
    *this = lockState();
}

bool lockState::isCellLocked(int row, int column) const
{
    return cellCounts_.contains(cellAt(row, column));
}

bool lockState::isLocked(int row, int column) const
{
    return isJointLocked(column) || isRowLocked(row) || isCellLocked(row, column);
}
