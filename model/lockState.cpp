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

void lockState::lockCell(int row, int column)
{
    cells_.append(cellAt(row, column));
}

void lockState::unlockCell(int row, int column)
{
    cells_.removeAll(cellAt(row, column));
}

bool lockState::isEmpty() const
{
    return rows_.isEmpty() && cells_.isEmpty() && joints().isEmpty();
}

bool lockState::isCellLocked(int row, int column) const
{
    return cells_.contains(cellAt(row, column));
}

bool lockState::isLocked(int row, int column) const
{
    return isJointLocked(column) || isRowLocked(row) || isCellLocked(row, column);
}

QList<int> lockState::joints() const
{
    QList<int> columns = joints_.entries();
    columns.removeAll(-1);
    return columns;
}
